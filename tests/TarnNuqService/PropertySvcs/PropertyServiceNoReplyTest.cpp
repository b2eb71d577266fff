// No network manager of Qt ever gives no reply object. In this program alone they all do, because its own definition of
// the operation comes before the one in Qt's library.
#include "TarnNuqService/PropertySvcs/CloudFixture.h"

QNetworkReply* QNetworkAccessManager::get(const QNetworkRequest&)
{
    return nullptr;
}

namespace {

using PropertyServiceNoReplyTest = testsupport::CloudFixture;

} // namespace

TEST_F(PropertyServiceNoReplyTest, EndsAPendingReplyForLegendsAtOnce)
{
    const std::unique_ptr<tarnnuq::CustomReply<tarnnuq::RecordPage<tarnnuq::ILegend>>> pending(
        Service().GetLegendsFromCloud(L"c", tarnnuq::ILegend::Plan, 20, 1, L"1.0"));
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->Error(), L"internal reply is null.");
    testsupport::ExpectWarnings(host, {});
}

TEST_F(PropertyServiceNoReplyTest, EndsAPendingReplyForMappingsAtOnce)
{
    const std::unique_ptr<tarnnuq::CustomReply<tarnnuq::RecordList<tarnnuq::ICategoryMapping>>> pending(
        Service().GetComponentEditorCategoryMappings(L"1.0"));
    ASSERT_TRUE(pending);
    EXPECT_EQ(pending->Error(), L"internal reply is null.");
    testsupport::ExpectWarnings(host, {});
}
