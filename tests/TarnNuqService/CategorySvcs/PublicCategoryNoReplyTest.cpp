// No network manager of Qt ever gives no reply object. In this program alone they all do, because its own definition of
// the operation comes before the one in Qt's library.
#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"

QNetworkReply* QNetworkAccessManager::get(const QNetworkRequest&)
{
    return nullptr;
}

namespace {

using PublicCategoryNoReplyTest = testsupport::PublicCategoryFixture;

} // namespace

TEST_F(PublicCategoryNoReplyTest, IsWarnedAboutAndNothingIsAnnounced)
{
    Service().RequestCategories(QString());
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "CategorySvcs/PublicCategoryService.cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::PublicCategoryService::RequestCategories");
    EXPECT_EQ(warning.message, L"pReply 为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-25");
    EXPECT_EQ(host.logger.Records().size(), 2U);
    EXPECT_TRUE(announced.empty());
    EXPECT_TRUE(server.Requests().empty());
}
