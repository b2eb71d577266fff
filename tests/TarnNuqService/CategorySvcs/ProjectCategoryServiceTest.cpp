#include "CategorySvcs/ProjectCategoryService.h"

#include "PropertySvcs/PropertyService.h"
#include "TarnNuqService/CategorySvcs/ProjectCategoryServiceAccess.h"
#include "TarnNuqService/PropertySvcs/HostLibrary.h"
#include "support/RecordingHost.h"

#include <QMetaMethod>
#include <algorithm>
#include <gtest/gtest.h>
#include <type_traits>

using tarnnuq::ProjectCategoryService;
using tarnnuq::PropertyService;

namespace {

static_assert(std::is_base_of_v<QObject, ProjectCategoryService>);
static_assert(!std::is_default_constructible_v<ProjectCategoryService>, "the one instance is made by Get()");
static_assert(!std::is_destructible_v<ProjectCategoryService>, "and lives as long as the process");

/// A host with the discipline "d", its category "c" and that one's end category "E".
class ProjectCategoryServiceTest : public ::testing::Test
{
protected:
    ProjectCategoryServiceTest()
    {
        library.AddEndCategory(library.AddCategory(library.AddDiscipline(L"d"), L"c"), L"E");
    }

    ProjectCategoryService& Service() { return *ProjectCategoryService::Get(); }

    testsupport::RecordingHost host;
    testsupport::HostLibrary library{host.categoryInfo};
};

} // namespace

TEST_F(ProjectCategoryServiceTest, IsOneInstanceWithoutAParent)
{
    EXPECT_EQ(ProjectCategoryService::Get(), ProjectCategoryService::Get());
    EXPECT_EQ(Service().parent(), nullptr);
}

TEST_F(ProjectCategoryServiceTest, MakesThePropertyServiceWhenThereIsNone)
{
    EXPECT_TRUE(Service().GetCategoryByCode(L"c"));
    library.AddDiscipline(L"later");
    EXPECT_EQ(PropertyService::Get()->GetCategoryByCode(L"later"), nullptr);
}

TEST_F(ProjectCategoryServiceTest, SharesTheRecordsOfTheTree)
{
    for (const wchar_t* code : {L"0", L"d", L"c", L"E"}) {
        ASSERT_TRUE(Service().GetCategoryByCode(code));
        EXPECT_EQ(Service().GetCategoryByCode(code), PropertyService::Get()->GetCategoryByCode(code));
    }
}

TEST_F(ProjectCategoryServiceTest, IsTheTreeAsItWasAtItsBeginning)
{
    const tarnnuq::ProjectCategoryServiceAccess access;
    const auto before = access.Categories();
    library.AddDiscipline(L"later");
    PropertyService::Get()->Init();
    EXPECT_TRUE(PropertyService::Get()->GetCategoryByCode(L"later"));
    EXPECT_EQ(access.Categories(), before);
    EXPECT_EQ(before.size(), 4U);
    const tarnnuq::ProjectCategoryServiceAccess another;
    EXPECT_EQ(another.Categories().size(), 5U);
}

TEST_F(ProjectCategoryServiceTest, FindsTheRootByItsCode)
{
    ASSERT_TRUE(Service().GetCategoryByCode(L"0"));
    EXPECT_EQ(Service().GetCategoryByCode(L"0")->Name, L"全部");
}

TEST_F(ProjectCategoryServiceTest, FindsNothingByAnotherSpellingOfACode)
{
    for (const wchar_t* code : {L"", L"e", L"C", L"D", L"d ", L" d", L"dc", L"00", L"id d", L"name d"}) {
        EXPECT_EQ(Service().GetCategoryByCode(code), nullptr) << QString::fromWCharArray(code).toStdString();
    }
}

TEST_F(ProjectCategoryServiceTest, FindsTheFirstOfOneCode)
{
    library.AddDiscipline(L"first", -1).code = L"c";
    EXPECT_EQ(Service().GetCategoryByCode(L"c")->IdText, L"id first");
}

TEST_F(ProjectCategoryServiceTest, FindsTheRootByTheIdThatAllOfThemHave)
{
    ASSERT_TRUE(Service().GetCategoryById(L"0"));
    EXPECT_EQ(Service().GetCategoryById(L"0"), Service().GetCategoryByCode(L"0"));
}

TEST_F(ProjectCategoryServiceTest, FindsNothingByAnyOtherId)
{
    library.AddDiscipline(L"17").id = L"17";
    for (const wchar_t* id : {L"", L"00", L"-0", L"+0", L" 0", L"0 ", L"0.0", L"1", L"17", L"id d", L"c", L"２"}) {
        EXPECT_EQ(Service().GetCategoryById(id), nullptr) << QString::fromWCharArray(id).toStdString();
    }
}

TEST_F(ProjectCategoryServiceTest, FindsANumericIdThatWasWrittenIntoARecord)
{
    Service().GetCategoryByCode(L"c")->Id = -7;
    Service().GetCategoryByCode(L"0")->Id = 2147483647;
    EXPECT_EQ(Service().GetCategoryById(L"-7")->Code, L"c");
    EXPECT_EQ(Service().GetCategoryById(L"2147483647")->Code, L"0");
    EXPECT_EQ(Service().GetCategoryById(L"0")->Code, L"d");
}

TEST_F(ProjectCategoryServiceTest, WithoutACategoryLibraryHasTheRootAlone)
{
    host.Remove(&hostsdk::HostServices::categoryInfo);
    EXPECT_EQ(Service().GetCategoryByCode(L"d"), nullptr);
    EXPECT_EQ(Service().GetCategoryById(L"0")->Code, L"0");
}

TEST_F(ProjectCategoryServiceTest, HasAMetaObjectWithoutSignalsOrSlots)
{
    const QMetaObject& meta = ProjectCategoryService::staticMetaObject;
    EXPECT_STREQ(meta.className(), "tarnnuq::ProjectCategoryService");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(Service().metaObject(), &meta);
}

TEST_F(ProjectCategoryServiceTest, TranslatesInItsOwnContext)
{
    EXPECT_EQ(ProjectCategoryService::tr("text"), QStringLiteral("text"));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    EXPECT_EQ(ProjectCategoryService::trUtf8("文字"), QStringLiteral("文字"));
    QT_WARNING_POP
}

TEST_F(ProjectCategoryServiceTest, HasItsMembersInOrder)
{
    tarnnuq::ProjectCategoryServiceAccess access;
    const std::vector<const void*> members = access.Members();
    EXPECT_TRUE(std::is_sorted(members.begin(), members.end(), std::less<>()));
    EXPECT_EQ(members.front(), reinterpret_cast<const char*>(&access.Service()) + sizeof(QObject));
    ASSERT_NE(access.Manager(), nullptr);
    EXPECT_EQ(access.Manager()->parent(), nullptr);
}

TEST_F(ProjectCategoryServiceTest, CopiesTheStructureEndPointOnce)
{
    host.wabConfig.endPoints[L"structure"] = L"http://Structure.example/S";
    const tarnnuq::ProjectCategoryServiceAccess access;
    host.wabConfig.endPoints[L"structure"] = L"changed";
    EXPECT_EQ(access.StructureEndPoint(), QStringLiteral("http://Structure.example/S"));
}

TEST_F(ProjectCategoryServiceTest, HasAnEmptyStructureEndPointWithoutAConfigurationManager)
{
    host.Remove(&hostsdk::HostServices::wabConfig);
    EXPECT_EQ(tarnnuq::ProjectCategoryServiceAccess().StructureEndPoint(), QString());
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(ProjectCategoryServiceTest, AuthorizesByThePlainTokenInEveryEnvironmentWithoutARecord)
{
    const tarnnuq::ProjectCategoryServiceAccess access;
    host.logger.Clear();
    host.userService.token = L"令牌";
    for (const char* environment : {"prod", "qa", "QA"}) {
        host.baseConfig.currentEnv = environment;
        QNetworkRequest request;
        access.Authorize(request);
        EXPECT_EQ(request.rawHeader("Authorization"), QByteArray("令牌")) << environment;
    }
    host.userService.token = L"";
    QNetworkRequest request;
    access.Authorize(request);
    EXPECT_TRUE(request.hasRawHeader("Authorization"));
    EXPECT_EQ(request.rawHeader("Authorization"), QByteArray());
    EXPECT_TRUE(host.logger.Records().empty());
}
