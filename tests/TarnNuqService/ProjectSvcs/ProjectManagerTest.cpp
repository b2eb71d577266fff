#include "TarnNuqService/ProjectSvcs/IProjectManagerAccess.h"
#include "support/NamedCase.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>
#include <type_traits>

using tarnnuq::IProjectManager;

namespace {

class ProjectManagerTest : public ::testing::Test
{
protected:
    ProjectManagerTest()
    {
        host.appService.appName = L"modeller";
        host.collaborationSettings.workingProjectId = L"working";
        host.userService.permission = 3;
    }

    IProjectManager& Manager() { return access.Manager(); }

    testsupport::RecordingHost host;
    tarnnuq::IProjectManagerAccess access;
};

/// An application's name that is not the stand-alone one's.
struct NameCase : testsupport::NamedCase
{
    std::wstring appName;
};

class OtherApplicationTest : public ProjectManagerTest, public ::testing::WithParamInterface<NameCase>
{
};

using PermissionQuestions = std::vector<std::pair<std::wstring, std::wstring>>;

} // namespace

static_assert(std::is_base_of_v<QObject, IProjectManager>);
static_assert(!std::is_constructible_v<IProjectManager, QObject*> && !std::is_destructible_v<IProjectManager>);
static_assert(std::is_same_v<decltype(std::declval<IProjectManager&>().GetDebugProjectId()), const std::wstring>);
static_assert(sizeof(IProjectManager) == sizeof(QObject) + sizeof(std::wstring), "the debug project id and no more");

TEST_F(ProjectManagerTest, DeclaresNothingInItsMetaObject)
{
    const QMetaObject& metaObject = IProjectManager::staticMetaObject;
    EXPECT_STREQ(metaObject.className(), "tarnnuq::IProjectManager");
    EXPECT_EQ(Manager().metaObject(), &metaObject);
    EXPECT_EQ(metaObject.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(metaObject.methodCount(), metaObject.methodOffset());
    EXPECT_EQ(metaObject.propertyCount(), metaObject.propertyOffset());
    EXPECT_EQ(metaObject.enumeratorCount(), metaObject.enumeratorOffset());
}

TEST_F(ProjectManagerTest, TheDebugProjectIsNoneUntilItIsSet)
{
    EXPECT_EQ(Manager().GetDebugProjectId(), L"");
    Manager().SetDebugProjectId(L"debug");
    EXPECT_EQ(Manager().GetDebugProjectId(), L"debug");
    EXPECT_EQ(access.DebugProjectId(), L"debug");
    Manager().SetDebugProjectId(L"");
    EXPECT_EQ(Manager().GetDebugProjectId(), L"");
}

TEST_F(ProjectManagerTest, TheDebugProjectSetToItselfStays)
{
    Manager().SetDebugProjectId(L"a project id that is longer than a short text");
    Manager().SetDebugProjectId(access.DebugProjectId());
    EXPECT_EQ(Manager().GetDebugProjectId(), L"a project id that is longer than a short text");
}

TEST_F(ProjectManagerTest, TheStandaloneApplicationsProjectIsTheDebugProject)
{
    host.appService.appName = L"AppNuq";
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"");
    Manager().SetDebugProjectId(L"debug");
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"debug");
    EXPECT_EQ(host.collaborationSettings.questions, 0);
}

TEST_P(OtherApplicationTest, HasTheHostsWorkingProject)
{
    host.appService.appName = GetParam().appName;
    Manager().SetDebugProjectId(L"debug");
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"working");
    EXPECT_EQ(host.collaborationSettings.questions, 1);
}

TEST_P(OtherApplicationTest, HasNoProjectWithoutCollaborationSettings)
{
    host.appService.appName = GetParam().appName;
    Manager().SetDebugProjectId(L"debug");
    host.Remove(&hostsdk::HostServices::collaborationSettings);
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"");
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

INSTANTIATE_TEST_SUITE_P(Names, OtherApplicationTest,
    ::testing::Values(NameCase{{"Another"}, L"modeller"}, NameCase{{"Empty"}, L""},
        NameCase{{"OneCharacterLonger"}, L"AppNuq2"}, NameCase{{"OneCharacterShorter"}, L"AppNu"},
        NameCase{{"LowerCase"}, L"appnuq"}, NameCase{{"OneLetterInAnotherCase"}, L"AppNUq"},
        NameCase{{"BlankInFront"}, L" AppNuq"}, NameCase{{"BlankBehind"}, L"AppNuq "},
        NameCase{{"NulBehind"}, std::wstring(L"AppNuq\0", 7)}),
    testsupport::RowName());

TEST_F(ProjectManagerTest, TheWorkingProjectIsAskedForEachTime)
{
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"working");
    host.collaborationSettings.workingProjectId = L"";
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"");
    host.appService.appName = L"AppNuq";
    Manager().SetDebugProjectId(L"debug");
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"debug");
}

TEST_F(ProjectManagerTest, AHostWithoutAnythingHasNoProject)
{
    hostsdk::Install({});
    EXPECT_EQ(Manager().GetCurrentProjectId(), L"");
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 0);
    EXPECT_EQ(Manager().GetProjectNameById(L"p"), L"");
}

TEST_F(ProjectManagerTest, ThePermissionIsThatForTheComponentLibraryInTheWorkingProject)
{
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 3);
    EXPECT_EQ(host.userService.permissionQuestions, (PermissionQuestions{{L"working", L"MUZ"}}));
    EXPECT_EQ(host.networkCheck.questions, 1);
    EXPECT_EQ(host.collaborationSettings.questions, 1);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(ProjectManagerTest, ThePermissionIsPassedOnAsItIs)
{
    for (const int permission : {-1, 0, 1, 2147483647, -2147483647 - 1}) {
        host.userService.permission = permission;
        EXPECT_EQ(Manager().GetCurrentProjectPermission(), permission);
    }
}

TEST_F(ProjectManagerTest, ThePermissionIsAskedForAlsoWithoutAProject)
{
    host.collaborationSettings.workingProjectId = L"";
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 3);
    EXPECT_EQ(host.userService.permissionQuestions, (PermissionQuestions{{L"", L"MUZ"}}));
}

TEST_F(ProjectManagerTest, TheDebugProjectPlaysNoPartInThePermission)
{
    host.appService.appName = L"AppNuq";
    Manager().SetDebugProjectId(L"debug");
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 3);
    EXPECT_EQ(host.userService.permissionQuestions, (PermissionQuestions{{L"working", L"MUZ"}}));
}

TEST_F(ProjectManagerTest, WithoutNetworkThereIsNoPermissionAndNobodyIsAsked)
{
    host.networkCheck.connected = false;
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 0);
    EXPECT_EQ(host.collaborationSettings.questions, 0);
    EXPECT_TRUE(host.userService.permissionQuestions.empty());
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(ProjectManagerTest, WithoutNetworkMissingSettingsAreNotWarnedAbout)
{
    host.networkCheck.connected = false;
    host.Remove(&hostsdk::HostServices::collaborationSettings);
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 0);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(ProjectManagerTest, MissingSettingsAreWarnedAboutAndGiveNoPermission)
{
    host.Remove(&hostsdk::HostServices::collaborationSettings);
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 0);
    EXPECT_TRUE(host.userService.permissionQuestions.empty());
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "ProjectSvcs/IProjectManager.cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::IProjectManager::GetCurrentProjectPermission");
    EXPECT_EQ(warning.message, L"pProjectSetting为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-17");
}

TEST_F(ProjectManagerTest, WithoutAUserServiceThereIsNoPermission)
{
    host.Remove(&hostsdk::HostServices::userService);
    EXPECT_EQ(Manager().GetCurrentProjectPermission(), 0);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(ProjectManagerTest, NamesProjectsAsTheHostDoes)
{
    host.collaborationNetwork.projectNames = {{L"p", L"  换热站 %1 "}, {L"", L"none"}};
    EXPECT_EQ(Manager().GetProjectNameById(L"p"), L"  换热站 %1 ");
    EXPECT_EQ(Manager().GetProjectNameById(L""), L"none");
    EXPECT_EQ(Manager().GetProjectNameById(L"P"), L"");
    host.collaborationNetwork.projectNames[L"p"] = L"renamed";
    EXPECT_EQ(Manager().GetProjectNameById(L"p"), L"renamed");
}
