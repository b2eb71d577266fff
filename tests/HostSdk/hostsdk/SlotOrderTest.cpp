#include "hostsdk/HostServices.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <type_traits>

using hostsdk::HostServices;

#define EXPECT_SLOT(index, member, type)                                                                               \
    EXPECT_EQ(offsetof(HostServices, member), (index) * sizeof(void*)) << #member;                                     \
    static_assert(std::is_same_v<decltype(HostServices::member), type*>, #member)

TEST(HostServicesTable, HoldsItsSlotsInTheFixedOrder)
{
    EXPECT_SLOT(0, logger, tarnnuq::INuqLogger);
    EXPECT_SLOT(1, debugMessages, zept::DebugMessageMgr);
    EXPECT_SLOT(2, appService, tarnnuq::AppService);
    EXPECT_SLOT(3, userService, tarnnuq::UserService);
    EXPECT_SLOT(4, paths, tarnnuq::PathUtils);
    EXPECT_SLOT(5, baseConfig, wab::IBaseConfigManager);
    EXPECT_SLOT(6, wabConfig, wab::IWabConfigManager);
    EXPECT_SLOT(7, categoryInfo, tarn::ITarnCategoryInfoUtils);
    EXPECT_SLOT(8, componentSql, tarn::TarnComponentSqlUtil);
    EXPECT_SLOT(9, filePaths, tarn::TarnFilePathSettings);
    EXPECT_SLOT(10, collaborationSettings, tarn::CollaborationProjectSettingForPS);
    EXPECT_SLOT(11, networkCheck, tarn::INetworkCheck);
    EXPECT_SLOT(12, collaborationNetwork, tarn::TarnCollaborationWithNetworkUtils);
    EXPECT_SLOT(13, familyFiles, zept::IFamilyFileFactory);
    EXPECT_SLOT(14, documentViews, zept::IUiDocumentViewManager);
}

TEST(HostServicesTable, HoldsNothingElse)
{
    EXPECT_EQ(sizeof(HostServices), 15 * sizeof(void*));
}

TEST(HostServicesTable, IsPlainData)
{
    EXPECT_TRUE(std::is_standard_layout_v<HostServices>);
    EXPECT_TRUE(std::is_trivially_copyable_v<HostServices>);
}
