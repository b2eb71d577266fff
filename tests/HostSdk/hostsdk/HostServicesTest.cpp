#include "hostsdk/HostServices.h"

#include "support/RecordingHost.h"

#include <cstring>
#include <gtest/gtest.h>

using testsupport::RecordingHost;

namespace {

bool IsAllNull(const hostsdk::HostServices& services)
{
    const hostsdk::HostServices empty;
    return std::memcmp(&services, &empty, sizeof(services)) == 0;
}

} // namespace

TEST(AnInstalledHost, IsMissingAtFirst)
{
    EXPECT_TRUE(IsAllNull(hostsdk::Installed()));
}

TEST(AnInstalledHost, IsReadBackMemberByMember)
{
    RecordingHost host;
    const hostsdk::HostServices& installed = hostsdk::Installed();
    EXPECT_EQ(installed.logger, &host.logger);
    EXPECT_EQ(installed.debugMessages, &host.debugMessages);
    EXPECT_EQ(installed.appService, &host.appService);
    EXPECT_EQ(installed.userService, &host.userService);
    EXPECT_EQ(installed.paths, &host.paths);
    EXPECT_EQ(installed.baseConfig, &host.baseConfig);
    EXPECT_EQ(installed.wabConfig, &host.wabConfig);
    EXPECT_EQ(installed.categoryInfo, &host.categoryInfo);
    EXPECT_EQ(installed.componentSql, &host.componentSql);
    EXPECT_EQ(installed.filePaths, &host.filePaths);
    EXPECT_EQ(installed.collaborationSettings, &host.collaborationSettings);
    EXPECT_EQ(installed.networkCheck, &host.networkCheck);
    EXPECT_EQ(installed.collaborationNetwork, &host.collaborationNetwork);
    EXPECT_EQ(installed.familyFiles, &host.familyFiles);
    EXPECT_EQ(installed.documentViews, &host.documentViews);
}

TEST(AnInstalledHost, ShowsInAReferenceTakenEarlier)
{
    const hostsdk::HostServices& before = hostsdk::Installed();
    const RecordingHost host;
    EXPECT_EQ(before.logger, &host.logger);
}

TEST(AnInstalledHost, IsACopyOfTheCallersTable)
{
    testsupport::RecordingLogger logger;
    hostsdk::HostServices services;
    services.logger = &logger;
    hostsdk::Install(services);
    services.logger = nullptr;
    EXPECT_EQ(hostsdk::Installed().logger, &logger);
    hostsdk::Install({});
}

TEST(AnInstalledHost, IsReplacedAsAWholeByTheNext)
{
    const RecordingHost first;
    testsupport::FakeNetworkCheck networkCheck;
    hostsdk::HostServices second;
    second.networkCheck = &networkCheck;
    hostsdk::Install(second);
    EXPECT_EQ(hostsdk::Installed().networkCheck, &networkCheck);
    EXPECT_EQ(hostsdk::Installed().logger, nullptr);
    EXPECT_EQ(hostsdk::Installed().documentViews, nullptr);
}

TEST(AnInstalledHost, CanBeTakenAwayAgain)
{
    const RecordingHost host;
    hostsdk::Install({});
    EXPECT_TRUE(IsAllNull(hostsdk::Installed()));
}

TEST(ARecordingHost, PutsTheHostBeforeItBack)
{
    const RecordingHost outer;
    {
        const RecordingHost inner;
        ASSERT_EQ(hostsdk::Installed().logger, &inner.logger);
    }
    EXPECT_EQ(hostsdk::Installed().logger, &outer.logger);
}

TEST(ARecordingHost, RemovesOneObjectAndKeepsTheOthers)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::baseConfig);
    EXPECT_EQ(hostsdk::Installed().baseConfig, nullptr);
    EXPECT_EQ(hostsdk::Installed().wabConfig, &host.wabConfig);
    host.InstallAll();
    EXPECT_EQ(hostsdk::Installed().baseConfig, &host.baseConfig);
}
