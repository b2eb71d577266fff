// No network manager of Qt ever gives no reply object. In this program alone they all do, because its own definition of
// the operation comes before the one in Qt's library.
#include "TarnNuqService/Providers/NewUrlImageProviderAccess.h"
#include "TarnNuqService/Providers/UrlImageProviderFixture.h"

QNetworkReply* QNetworkAccessManager::get(const QNetworkRequest&)
{
    return nullptr;
}

namespace {

using ProvidersNoReplyTest = testsupport::UrlImageProviderFixture;

} // namespace

TEST_F(ProvidersNoReplyTest, IsWarnedAboutAndNoImageIsAnswered)
{
    const std::wstring url = Url(QStringLiteral("/pump.png"));
    provider->Provide(url);
    ExpectWarning("Providers/UrlImageProvider.cpp", "tarnnuq::UrlImageProvider::Provide", L"reply 为空");
    EXPECT_EQ(host.logger.Texts(), QStringList{QStringLiteral("get image from ") + FileOf(url)});
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(ProvidersNoReplyTest, IsWarnedAboutAndNoFileReplyIsGiven)
{
    const std::wstring url = Url(QStringLiteral("/pump.png"));
    EXPECT_EQ(tarnnuq::NewUrlImageProvider::Get()->ProvideImageFile(url), nullptr);
    ExpectWarning(
        "Providers/NewUrlImageProvider.cpp", "tarnnuq::NewUrlImageProvider::ProvideImageFile", L"pReply 为空");
    EXPECT_EQ(host.logger.Texts(), QStringList{FileOf(url)});
    EXPECT_TRUE(CacheFiles().isEmpty());
}
