#include "tarnnuq/AppService.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

using tarnnuq::AppService;
using testsupport::RecordingHost;

TEST(TheApplication, AnswersAsTheHostDoes)
{
    RecordingHost host;
    host.appService.appDir = L"C:\\程序";
    host.appService.appName = L"AppNuq";
    host.appService.major = tarnnuq::Electrical;
    EXPECT_EQ(AppService::Get(), &host.appService);
    EXPECT_EQ(AppService::GetAppDir(), L"C:\\程序");
    EXPECT_EQ(AppService::GetAppName(), L"AppNuq");
    EXPECT_EQ(AppService::GetMajor(), tarnnuq::Electrical);
}

TEST(TheApplication, IsAskedForItsVersionWithTheFormatAsGiven)
{
    RecordingHost host;
    host.appService.version = L"2.7";
    EXPECT_EQ(AppService::Get()->GeFormattedProductVersion(L"0.0"), L"2.7");
    EXPECT_EQ(host.appService.formats, std::vector<std::wstring>{L"0.0"});
}

TEST(TheApplication, IsUnknownWithoutAHost)
{
    ASSERT_NE(AppService::Get(), nullptr);
    EXPECT_EQ(AppService::GetAppDir(), L"");
    EXPECT_EQ(AppService::GetAppName(), L"");
    EXPECT_EQ(AppService::GetMajor(), tarnnuq::None);
    EXPECT_EQ(AppService::Get()->GeFormattedProductVersion(L"0.0"), L"");
}

TEST(TheApplication, IsUnknownWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::appService);
    EXPECT_NE(AppService::Get(), &host.appService);
    EXPECT_EQ(AppService::GetAppName(), L"");
    EXPECT_EQ(AppService::GetMajor(), tarnnuq::None);
}

TEST(TheMajors, HaveTheirNumbersOnTheWire)
{
    EXPECT_EQ(tarnnuq::None, -1);
    EXPECT_EQ(tarnnuq::Plumbing, 0);
    EXPECT_EQ(tarnnuq::Hvac, 1);
    EXPECT_EQ(tarnnuq::Electrical, 2);
}
