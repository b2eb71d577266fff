#include "support/RecordingHost.h"
#include "wab/IBaseConfigManager.h"
#include "wab/IWabConfigManager.h"

#include <gtest/gtest.h>

using testsupport::RecordingHost;
using wab::IBaseConfigManager;
using wab::IWabConfigManager;

TEST(TheBaseConfiguration, IsTheHosts)
{
    RecordingHost host;
    host.baseConfig.currentEnv = "QA";
    ASSERT_EQ(IBaseConfigManager::Get(), &host.baseConfig);
    EXPECT_EQ(IBaseConfigManager::Get()->GetCurrentEnv(), "QA");
}

TEST(TheBaseConfiguration, IsMissingWithoutAHost)
{
    EXPECT_EQ(IBaseConfigManager::Get(), nullptr);
}

TEST(TheBaseConfiguration, IsMissingWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::baseConfig);
    EXPECT_EQ(IBaseConfigManager::Get(), nullptr);
    EXPECT_EQ(IWabConfigManager::Get(), &host.wabConfig);
}

TEST(TheWabConfiguration, IsTheHosts)
{
    RecordingHost host;
    host.wabConfig.endPoints[L"structure"] = L"http://host/structure";
    ASSERT_EQ(IWabConfigManager::Get(), &host.wabConfig);
    EXPECT_EQ(IWabConfigManager::Get()->GetEndPoint(L"structure"), L"http://host/structure");
    EXPECT_EQ(IWabConfigManager::Get()->GetEndPoint(L"other"), L"");
}

TEST(TheWabConfiguration, IsMissingWithoutAHost)
{
    EXPECT_EQ(IWabConfigManager::Get(), nullptr);
}

TEST(TheWabConfiguration, IsMissingWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::wabConfig);
    EXPECT_EQ(IWabConfigManager::Get(), nullptr);
    EXPECT_EQ(IBaseConfigManager::Get(), &host.baseConfig);
}
