#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QTranslator>
#include <algorithm>
#include <type_traits>

using tarnnuq::PropertyService;

namespace {

using PropertyServiceTest = testsupport::PropertyServiceFixture;

static_assert(std::is_base_of_v<QObject, PropertyService>);
static_assert(!std::is_default_constructible_v<PropertyService>, "the one instance is made by Get()");
static_assert(!std::is_destructible_v<PropertyService>, "and lives as long as the process");

} // namespace

TEST_F(PropertyServiceTest, IsOneInstanceWithoutAParent)
{
    PropertyService* service = PropertyService::Get();
    EXPECT_EQ(PropertyService::Get(), service);
    EXPECT_EQ(service->parent(), nullptr);
}

TEST_F(PropertyServiceTest, IsBuiltByTheFirstCall)
{
    library.AddCategory(library.AddDiscipline(L"d"), L"c");
    EXPECT_EQ(PropertyService::Get()->GetCategories().size(), 3U);
    library.AddDiscipline(L"e");
    EXPECT_EQ(PropertyService::Get()->GetCategories().size(), 3U);
}

TEST_F(PropertyServiceTest, HasAMetaObjectWithoutSignalsOrSlots)
{
    const QMetaObject& meta = PropertyService::staticMetaObject;
    EXPECT_STREQ(meta.className(), "tarnnuq::PropertyService");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
    EXPECT_EQ(Service().metaObject(), &meta);
}

TEST_F(PropertyServiceTest, TranslatesInItsOwnContext)
{
    EXPECT_EQ(PropertyService::tr("text"), QStringLiteral("text"));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    EXPECT_EQ(PropertyService::trUtf8("文字"), QStringLiteral("文字"));
    QT_WARNING_POP
}

TEST_F(PropertyServiceTest, HasItsMembersInOrder)
{
    const std::vector<const void*> members = Access().Members();
    EXPECT_TRUE(std::is_sorted(members.begin(), members.end(), std::less<>()));
    EXPECT_EQ(members.front(), reinterpret_cast<const char*>(&Service()) + sizeof(QObject));
}

TEST_F(PropertyServiceTest, HasANetworkManagerWithoutAParent)
{
    ASSERT_NE(Access().Manager(), nullptr);
    EXPECT_EQ(Access().Manager()->parent(), nullptr);
}

TEST_F(PropertyServiceTest, CopiesItsEndPointOnce)
{
    const testsupport::EnvironmentFolder folder;
    host.appService.appDir = folder.AppDir();
    folder.WriteEndPoints(QStringLiteral("http://Api.example/Base"), QString());
    EXPECT_EQ(Access().ApiEndPoint(), QStringLiteral("http://Api.example/Base"));
}

TEST_F(PropertyServiceTest, HasAnEmptyEndPointWithoutConfiguration)
{
    EXPECT_EQ(Access().ApiEndPoint(), QString());
}

TEST_F(PropertyServiceTest, AuthorizesByTheEnvironmentAndLogsIt)
{
    Service();
    host.logger.Clear();
    host.baseConfig.currentEnv = "QA";
    host.userService.tokenInQa = L"令牌";
    QNetworkRequest request;
    request.setRawHeader("Authorization", "old");
    Access().Authorize(request);
    EXPECT_EQ(request.rawHeader("Authorization"), QByteArray("bearer 令牌"));
    EXPECT_EQ(host.logger.Records(), (std::vector<testsupport::LogRecord>{{testsupport::LogRecord::Operation::Debug,
                                         {QStringLiteral("Authorization header: "), QStringLiteral("bearer 令牌")}}}));
}
