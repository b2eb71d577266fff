#include "support/RecordingHost.h"
#include "tarn/TarnComponentSqlUtil.h"
#include "tarn/TarnFilePathSettings.h"

#include <gtest/gtest.h>

using tarn::TarnComponentSqlUtil;
using tarn::TarnFilePathSettings;
using testsupport::RecordingHost;

namespace {

using Legends = std::map<std::wstring, std::wstring>;

const Legends Before{{L"1", L"already there"}};

} // namespace

TEST(LocalLegends, AreTheHosts)
{
    RecordingHost host;
    host.componentSql.legends = {{L"7", L"管道\\阀"}};
    Legends legends;
    EXPECT_TRUE(TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(L"a.db", L"code", tarn::Profile, legends));
    EXPECT_EQ(legends, (Legends{{L"7", L"管道\\阀"}}));
}

TEST(LocalLegends, AreAskedForWithTheCallersWords)
{
    RecordingHost host;
    Legends legends;
    TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(L"a.db", L"code", tarn::Elevation, legends);
    ASSERT_EQ(host.componentSql.questions.size(), 1U);
    EXPECT_EQ(host.componentSql.questions[0].dbPath, L"a.db");
    EXPECT_EQ(host.componentSql.questions[0].categoryCode, L"code");
    EXPECT_EQ(host.componentSql.questions[0].type, tarn::Elevation);
}

TEST(LocalLegends, FailWhenTheHostSaysSo)
{
    RecordingHost host;
    host.componentSql.succeeds = false;
    Legends legends;
    EXPECT_FALSE(TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(L"a.db", L"code", tarn::Plan, legends));
}

TEST(LocalLegends, FailWithoutAHostAndLeaveTheMapAlone)
{
    Legends legends = Before;
    EXPECT_FALSE(TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(L"a.db", L"code", tarn::Plan, legends));
    EXPECT_EQ(legends, Before);
}

TEST(LocalLegends, FailWhenTheHostHasNoDatabase)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::componentSql);
    Legends legends = Before;
    EXPECT_FALSE(TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(L"a.db", L"code", tarn::Plan, legends));
    EXPECT_EQ(legends, Before);
    EXPECT_TRUE(host.componentSql.questions.empty());
}

TEST(LegendTypes, HaveTheNumbersOfTheRecords)
{
    EXPECT_EQ(tarn::TarnLegendType::Unknown, 0);
    EXPECT_EQ(tarn::TarnLegendType::Plan, 1);
    EXPECT_EQ(tarn::TarnLegendType::Elevation, 2);
    EXPECT_EQ(tarn::TarnLegendType::Profile, 3);
    EXPECT_EQ(sizeof(tarn::TarnLegendType), 4U);
}

TEST(ProductPaths, AreTheHosts)
{
    RecordingHost host;
    host.filePaths.productDbFile = L"D:\\产品\\components.db";
    host.filePaths.product2DFolder = L"D:\\产品\\2d";
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProductDBFilePath(), L"D:\\产品\\components.db");
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProduct2DFolderPath(), L"D:\\产品\\2d");
}

TEST(ProductPaths, AreEmptyWithoutAHost)
{
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProductDBFilePath(), L"");
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProduct2DFolderPath(), L"");
}

TEST(ProductPaths, AreEmptyWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::filePaths);
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProductDBFilePath(), L"");
    EXPECT_EQ(TarnFilePathSettings::GetCurrentProduct2DFolderPath(), L"");
}
