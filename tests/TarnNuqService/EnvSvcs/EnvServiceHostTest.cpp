#include "EnvSvcs/EnvService.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"

using tarnnuq::EnvService;

namespace {

using EnvServiceHostTest = testsupport::EnvServiceFixture;

} // namespace

TEST_F(EnvServiceHostTest, TheCurrentEnvironmentIsAskedOfTheHostEachTime)
{
    host.baseConfig.currentEnv = "QA 测试";
    EXPECT_EQ(EnvService::GetWabCurrentEnv(), L"QA 测试");
    host.baseConfig.currentEnv = "prod";
    EXPECT_EQ(EnvService::GetWabCurrentEnv(), L"prod");
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(EnvServiceHostTest, WithoutAConfigurationManagerTheCurrentEnvironmentIsEmptyWithAWarning)
{
    host.Remove(&hostsdk::HostServices::baseConfig);
    EXPECT_EQ(EnvService::GetWabCurrentEnv(), L"");
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "EnvSvcs/EnvService.cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::EnvService::GetWabCurrentEnv");
    EXPECT_EQ(warning.message, L"pConfigMgr为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-25");
}

TEST_F(EnvServiceHostTest, WithoutAConfigurationManagerThereAreNoEndPoints)
{
    folder.WriteAll();
    host.Remove(&hostsdk::HostServices::baseConfig);
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"");
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"");
    EXPECT_EQ(host.debugMessages.Messages(), std::vector<std::wstring>{L"pConfigMgr为空"});
}

TEST_F(EnvServiceHostTest, TheStructureEndPointIsAskedOfTheHostEachTime)
{
    host.wabConfig.endPoints = {{L"Structure", L"wrong"}, {L"structure", L"http://h/结构"}};
    EXPECT_EQ(EnvService::GetWabStructureEndPoint(), L"http://h/结构");
    host.wabConfig.endPoints[L"structure"] = L"http://h/other";
    EXPECT_EQ(EnvService::GetWabStructureEndPoint(), L"http://h/other");
}

TEST_F(EnvServiceHostTest, WithoutAnEndPointManagerTheStructureEndPointIsEmptyWithoutAWarning)
{
    host.Remove(&hostsdk::HostServices::wabConfig);
    EXPECT_EQ(EnvService::GetWabStructureEndPoint(), L"");
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(EnvServiceHostTest, QuestionsForTheHostDoNotReadTheFiles)
{
    folder.WriteAll();
    EnvService::GetWabCurrentEnv();
    EnvService::GetWabStructureEndPoint();
    EXPECT_TRUE(host.logger.Records().empty());
    host.baseConfig.currentEnv = "prod";
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://example/Api");
}

TEST_F(EnvServiceHostTest, WithoutAnyHostObjectEverythingIsEmpty)
{
    hostsdk::Install({});
    EXPECT_EQ(EnvService::GetWabCurrentEnv(), L"");
    EXPECT_EQ(EnvService::GetWabStructureEndPoint(), L"");
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"");
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"");
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"");
}
