#include "tarnnuq/UserService.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

using tarnnuq::UserService;
using testsupport::RecordingHost;

TEST(TheUser, IsTheHosts)
{
    RecordingHost host;
    host.userService.token = L"abc";
    host.userService.tokenInQa = L"def";
    EXPECT_EQ(UserService::Get(), &host.userService);
    EXPECT_EQ(UserService::Get()->GetToken(), L"abc");
    EXPECT_EQ(UserService::Get()->GetTokenInQa(), L"def");
}

TEST(TheUser, IsAskedForAProjectAndAModule)
{
    RecordingHost host;
    host.userService.permission = 7;
    EXPECT_EQ(UserService::Get()->GetPermissionInCollaborationProject(L"project", L"MUZ"), 7);
    const std::vector<std::pair<std::wstring, std::wstring>> expected{{L"project", L"MUZ"}};
    EXPECT_EQ(host.userService.permissionQuestions, expected);
}

TEST(TheUser, IsNobodyWithoutAHost)
{
    ASSERT_NE(UserService::Get(), nullptr);
    EXPECT_EQ(UserService::Get()->GetToken(), L"");
    EXPECT_EQ(UserService::Get()->GetTokenInQa(), L"");
    EXPECT_EQ(UserService::Get()->GetPermissionInCollaborationProject(L"project", L"MUZ"), 0);
}

TEST(TheUser, IsNobodyWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::userService);
    EXPECT_EQ(UserService::Get()->GetToken(), L"");
    EXPECT_NE(UserService::Get(), &host.userService);
}
