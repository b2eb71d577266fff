#include "support/RecordingHost.h"
#include "tarn/CollaborationProjectSettingForPS.h"
#include "tarn/INetworkCheck.h"
#include "tarn/TarnCollaborationWithNetworkUtils.h"

#include <gtest/gtest.h>

using tarn::CollaborationProjectSettingForPS;
using tarn::INetworkCheck;
using tarn::TarnCollaborationWithNetworkUtils;
using testsupport::RecordingHost;

TEST(TheCollaborationSettings, AreTheHosts)
{
    RecordingHost host;
    host.collaborationSettings.workingProjectId = L"42";
    ASSERT_EQ(CollaborationProjectSettingForPS::Instance(), &host.collaborationSettings);
    EXPECT_EQ(CollaborationProjectSettingForPS::Instance()->GetWorkingProjectId(), L"42");
}

TEST(TheCollaborationSettings, AreMissingWithoutAHost)
{
    EXPECT_EQ(CollaborationProjectSettingForPS::Instance(), nullptr);
}

TEST(TheCollaborationSettings, AreMissingWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::collaborationSettings);
    EXPECT_EQ(CollaborationProjectSettingForPS::Instance(), nullptr);
}

TEST(TheNetworkCheck, IsTheHosts)
{
    RecordingHost host;
    EXPECT_EQ(INetworkCheck::Get(), &host.networkCheck);
    EXPECT_TRUE(INetworkCheck::Get()->IsConnected());
    EXPECT_EQ(host.networkCheck.questions, 1);
}

TEST(TheNetworkCheck, IsNeverConnectedWithoutAHost)
{
    ASSERT_NE(INetworkCheck::Get(), nullptr);
    EXPECT_FALSE(INetworkCheck::Get()->IsConnected());
}

TEST(TheNetworkCheck, IsNeverConnectedWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::networkCheck);
    EXPECT_FALSE(INetworkCheck::Get()->IsConnected());
}

TEST(ProjectNames, AreTheHosts)
{
    RecordingHost host;
    host.collaborationNetwork.projectNames[L"42"] = L"机电样板";
    EXPECT_EQ(TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(L"42"), L"机电样板");
    EXPECT_EQ(TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(L"43"), L"");
}

TEST(ProjectNames, AreEmptyWithoutAHost)
{
    EXPECT_EQ(TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(L"42"), L"");
}

TEST(ProjectNames, AreEmptyWhenTheHostHasNone)
{
    RecordingHost host;
    host.collaborationNetwork.projectNames[L"42"] = L"name";
    host.Remove(&hostsdk::HostServices::collaborationNetwork);
    EXPECT_EQ(TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(L"42"), L"");
}
