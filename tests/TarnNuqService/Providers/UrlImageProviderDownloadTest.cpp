#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "TarnNuqService/Providers/UrlImageProviderFixture.h"
#include "support/FileSizeLimit.h"
#include "support/NamedCase.h"
#include "support/ReplyFetcher.h"

#include <QTcpServer>
#include <set>

using testsupport::ImageBytes;
using testsupport::LogRecord;
using testsupport::PngBomb;
using testsupport::PromisingPng;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;

namespace {

using Framing = ScriptedResponse::Framing;
using CutPoint = ScriptedResponse::CutPoint;

class UrlImageProviderDownloadTest : public testsupport::UrlImageProviderFixture
{
protected:
    /// How many requests came for a target.
    std::size_t RequestsFor(const QByteArray& path) const
    {
        std::size_t count = 0;
        for (const testsupport::ReceivedRequest& request : server.Requests()) {
            count += request.target == path ? 1 : 0;
        }
        return count;
    }

    const QString target = QStringLiteral("/pump.png");
    const std::wstring url = Url(target);
    const QByteArray png = ImageBytes(SampleImage());
};

std::multiset<QByteArray> HeaderNames(const testsupport::ReceivedRequest& request)
{
    std::multiset<QByteArray> names;
    for (const auto& [name, value] : request.headers) {
        names.insert(name.toLower());
    }
    return names;
}

struct GoodAnswer : testsupport::NamedCase
{
    ScriptedResponse response;
    QByteArray body;
    /// Empty for bytes that are no image.
    QSize size;
};

class GoodAnswerTest : public UrlImageProviderDownloadTest, public ::testing::WithParamInterface<GoodAnswer>
{
};

struct FailedAnswer : testsupport::NamedCase
{
    ScriptedResponse response;
};

class FailedAnswerTest : public UrlImageProviderDownloadTest, public ::testing::WithParamInterface<FailedAnswer>
{
};

const QByteArray Png = ImageBytes(SampleImage());
const QByteArray LargePng = ImageBytes(SampleImage(300, 200));
const QByteArray Page = "<!DOCTYPE html><html>sign in</html>";

} // namespace

TEST_P(GoodAnswerTest, IsCachedByteForByteAndDecodedAndFromThenOnServedFromTheFile)
{
    const std::shared_ptr<QImage> image = Provide(target, GetParam().response);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->size(), GetParam().size.isEmpty() ? QSize(0, 0) : GetParam().size);
    EXPECT_EQ(Read(FileOf(url)), GetParam().body);

    const std::size_t requestsBefore = RequestsFor("/pump.png");
    answers.clear();
    provider->Provide(url);
    ASSERT_EQ(answers.size(), 1U) << "a file that is there is provided inside the call";
    ASSERT_NE(answers[0].image, nullptr);
    EXPECT_EQ(*answers[0].image, *image);
    RunPastEverything();
    EXPECT_EQ(RequestsFor("/pump.png"), requestsBefore);
}

INSTANTIATE_TEST_SUITE_P(Answers, GoodAnswerTest,
    ::testing::Values(GoodAnswer{{"APng"}, ScriptedResponse::Content(Png, "image/png"), Png, {24, 16}},
        GoodAnswer{{"AnImageUnderAnotherType"}, ScriptedResponse::Content(Png, "text/plain"), Png, {24, 16}},
        GoodAnswer{{"ABitmap"}, ScriptedResponse::Status(200, ImageBytes(SampleImage(7, 9), "BMP")),
            ImageBytes(SampleImage(7, 9), "BMP"), {7, 9}},
        GoodAnswer{
            {"Chunks"}, ScriptedResponse::Status(200, LargePng).WithFraming(Framing::Chunked), LargePng, {300, 200}},
        GoodAnswer{{"UpToTheEndOfTheConnection"},
            ScriptedResponse::Status(200, LargePng).WithFraming(Framing::UntilClose), LargePng, {300, 200}},
        GoodAnswer{{"DrippingBytes"}, ScriptedResponse::Status(200, Png).Dripping(50, std::chrono::milliseconds(1)),
            Png, {24, 16}},
        GoodAnswer{{"APage"}, ScriptedResponse::Content(Page, "text/html"), Page, {}},
        GoodAnswer{{"Nothing"}, ScriptedResponse::Status(200), "", {}},
        GoodAnswer{{"NoContent"}, ScriptedResponse::Status(204), "", {}},
        GoodAnswer{{"PartialContent"}, ScriptedResponse::Status(206, Png.left(60)), Png.left(60), {}},
        GoodAnswer{{"ARedirection"}, ScriptedResponse::Redirect("/elsewhere"), "<html>moved</html>", {}},
        GoodAnswer{{"NotModified"}, ScriptedResponse::Status(304), "", {}},
        GoodAnswer{{"CutWithoutALengthThatWouldTell"},
            ScriptedResponse::Status(200, LargePng.left(3000)).WithFraming(Framing::UntilClose), LargePng.left(3000),
            {}},
        GoodAnswer{{"TenGigabytesPromised"}, ScriptedResponse::Status(200, PromisingPng(50000, 50000)),
            PromisingPng(50000, 50000), {}},
        GoodAnswer{{"ManyPixelsInFewBytes"}, ScriptedResponse::Status(200, PngBomb(3000, 2000)), PngBomb(3000, 2000),
            {3000, 2000}}),
    testsupport::RowName());

TEST_P(FailedAnswerTest, IsANullPointerAndLeavesNoFileAndIsAskedForAgain)
{
    EXPECT_EQ(Provide(target, GetParam().response), nullptr);
    EXPECT_TRUE(CacheFiles().isEmpty());
    const std::size_t before = RequestsFor("/pump.png");
    EXPECT_EQ(Provide(url), nullptr);
    EXPECT_GT(RequestsFor("/pump.png"), before);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_P(FailedAnswerTest, IsNotLogged)
{
    Provide(target, GetParam().response);
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{{LogRecord::Operation::Info, {QStringLiteral("get image from ") + FileOf(url)}}}));
}

INSTANTIATE_TEST_SUITE_P(Answers, FailedAnswerTest,
    ::testing::Values(FailedAnswer{{"NotFoundThoughItBringsAnImage"}, ScriptedResponse::Content(Png, "image/png", 404)},
        FailedAnswer{{"Unauthorized"}, ScriptedResponse::Status(401)},
        FailedAnswer{{"TooManyRequests"}, ScriptedResponse::Status(429).WithHeader("Retry-After", "1")},
        FailedAnswer{{"ServerError"}, ScriptedResponse::Json("{}", 500)},
        FailedAnswer{{"ClosedBeforeTheHeaders"}, ScriptedResponse::Status(200, Png).CutAt(CutPoint::BeforeHeaders)},
        FailedAnswer{{"ClosedWithinTheHeaders"}, ScriptedResponse::Status(200, Png).CutAt(CutPoint::WithinHeaders)},
        FailedAnswer{{"ClosedBehindTheHeaders"}, ScriptedResponse::Status(200, Png).CutAt(CutPoint::AfterHeaders)},
        FailedAnswer{{"ClosedWithinTheBody"}, ScriptedResponse::Status(200, LargePng).CutAt(CutPoint::WithinBody)},
        FailedAnswer{{"ShorterThanItsLength"}, ScriptedResponse::Status(200, Png).WithDeclaredLength(Png.size() + 1)},
        FailedAnswer{
            {"BrokenCompression"}, ScriptedResponse::Status(200, "no gzip").WithHeader("Content-Encoding", "gzip")}),
    testsupport::RowName());

TEST_F(UrlImageProviderDownloadTest, NothingIsAnsweredInsideTheCall)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    provider->Provide(url);
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(WaitForAnswers(1));
    EXPECT_EQ(*answers[0].image, SampleImage());
}

TEST_F(UrlImageProviderDownloadTest, TheFileIsThereWhenTheAnswerComes)
{
    QByteArray seen;
    QObject::connect(provider.get(), &tarnnuq::UrlImageProvider::OnProvided, [&] { seen = Read(FileOf(url)); });
    Provide(target, ScriptedResponse::Status(200, png));
    EXPECT_EQ(seen, png);
}

TEST_F(UrlImageProviderDownloadTest, TheRecordIsWrittenOnceAndSuccessHasNone)
{
    Provide(target, ScriptedResponse::Status(200, png));
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{{LogRecord::Operation::Info, {QStringLiteral("get image from ") + FileOf(url)}}}));
}

TEST_F(UrlImageProviderDownloadTest, TheRequestHasNoHeadersButThoseOfQt)
{
    host.baseConfig.currentEnv = "qa";
    Provide(target, ScriptedResponse::Status(200, png));
    server.On("/bare", ScriptedResponse::Status(200));
    testsupport::ReplyFetcher().Get(server.Url(QStringLiteral("/bare")));
    const std::vector<testsupport::ReceivedRequest> requests = server.Requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].method, "GET");
    EXPECT_EQ(requests[0].HeaderCount("Authorization"), 0);
    EXPECT_EQ(HeaderNames(requests[0]), HeaderNames(requests[1]));
    EXPECT_TRUE(host.logger.RecordsOf(LogRecord::Operation::Debug).empty());
}

TEST_F(UrlImageProviderDownloadTest, TheAnswerCarriesTheUrlAsGivenWhileTheRequestHasItNormalised)
{
    const std::wstring odd = Url(QStringLiteral("/水 泵%2F.png?a=b c#part"));
    server.On("/%E6%B0%B4%20%E6%B3%B5%2F.png?a=b%20c", ScriptedResponse::Status(200, png));
    EXPECT_EQ(Provide(odd)->size(), QSize(24, 16));
    EXPECT_EQ(answers.back().url, odd);
    EXPECT_EQ(Read(FileOf(odd)), png);
}

TEST_F(UrlImageProviderDownloadTest, TwoUrlsOfOneAddressAreTwoFilesAndTwoRequests)
{
    server.On("/a%20b.png", ScriptedResponse::Status(200, png));
    Provide(Url(QStringLiteral("/a b.png")));
    Provide(Url(QStringLiteral("/a%20b.png")));
    EXPECT_EQ(RequestsFor("/a%20b.png"), 2U);
    EXPECT_EQ(CacheFiles().size(), 2);
}

TEST_F(UrlImageProviderDownloadTest, TwoCallsForOneUrlSendTwoRequestsAndAnswerTwice)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    provider->Provide(url);
    provider->Provide(url);
    EXPECT_TRUE(WaitForAnswers(2));
    RunPastEverything();
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(RequestsFor("/pump.png"), 2U);
    EXPECT_EQ(answers[0].url, url);
    EXPECT_EQ(answers[1].url, url);
    EXPECT_NE(answers[0].image, answers[1].image);
    EXPECT_EQ(*answers[0].image, *answers[1].image);
}

TEST_F(UrlImageProviderDownloadTest, TheSecondToFinishOverwritesTheFileOfTheFirst)
{
    const QByteArray quickBytes = ImageBytes(SampleImage(30, 30));
    const QByteArray slowBytes = ImageBytes(SampleImage(6, 6));
    server.On("/pump.png", ScriptedResponse::Status(200, slowBytes).Delayed(std::chrono::milliseconds(100)));
    server.On("/pump.png", ScriptedResponse::Status(200, quickBytes));
    provider->Provide(url);
    ASSERT_TRUE(testsupport::WaitFor([this] { return server.Requests().size() == 1; }));
    provider->Provide(url);
    ASSERT_TRUE(WaitForAnswers(1));
    EXPECT_EQ(answers[0].image->size(), QSize(30, 30));
    EXPECT_EQ(Read(FileOf(url)), quickBytes);
    ASSERT_TRUE(WaitForAnswers(2));
    EXPECT_EQ(answers[1].image->size(), QSize(6, 6));
    EXPECT_EQ(Read(FileOf(url)), slowBytes);
}

TEST_F(UrlImageProviderDownloadTest, ASecondThatFailsLeavesTheFileOfTheFirst)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    server.On("/pump.png", ScriptedResponse::Status(500));
    provider->Provide(url);
    provider->Provide(url);
    ASSERT_TRUE(WaitForAnswers(2));
    EXPECT_NE(answers[0].image == nullptr, answers[1].image == nullptr);
    EXPECT_EQ(Read(FileOf(url)), png);
}

TEST_F(UrlImageProviderDownloadTest, EachOfManyAnswersCarriesItsOwnImage)
{
    constexpr int Count = 40;
    for (int i = 0; i < Count; ++i) {
        const QString each = QStringLiteral("/%1.png").arg(i);
        server.On(each.toLatin1(), ScriptedResponse::Status(200, ImageBytes(SampleImage(i + 1, 3))));
        provider->Provide(Url(each));
    }
    ASSERT_TRUE(WaitForAnswers(Count));
    std::set<std::wstring> urls;
    for (const Answer& answer : answers) {
        ASSERT_NE(answer.image, nullptr);
        EXPECT_EQ(answer.url, Url(QStringLiteral("/%1.png").arg(answer.image->width() - 1)));
        urls.insert(answer.url);
    }
    EXPECT_EQ(urls.size(), static_cast<std::size_t>(Count));
    EXPECT_LE(server.ConnectionCount(), 6);
}

TEST_F(UrlImageProviderDownloadTest, AServerThatIsNotThereIsANullPointer)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const std::wstring nowhere = QStringLiteral("http://127.0.0.1:%1/x").arg(closed.serverPort()).toStdWString();
    closed.close();
    EXPECT_EQ(Provide(nowhere), nullptr);
    EXPECT_TRUE(CacheFiles().isEmpty());
}

TEST_F(UrlImageProviderDownloadTest, WhatIsNoUrlIsANullPointer)
{
    for (const wchar_t* text : {L"", L"   ", L"no scheme", L"http://[broken", L"gopher://h/x"}) {
        EXPECT_EQ(Provide(text), nullptr);
        EXPECT_EQ(answers.back().url, text);
    }
    EXPECT_TRUE(CacheFiles().isEmpty());
}

TEST_F(UrlImageProviderDownloadTest, AnImageWhoseFolderIsMissingIsProvidedAndNotCached)
{
    host.paths.folder = (folder.filePath(QStringLiteral("missing")) + QLatin1Char('/')).toStdWString();
    EXPECT_EQ(Provide(target, ScriptedResponse::Status(200, png))->size(), QSize(24, 16));
    EXPECT_FALSE(QFile::exists(FileOf(url)));
    EXPECT_EQ(Provide(url)->size(), QSize(24, 16));
    EXPECT_EQ(RequestsFor("/pump.png"), 2U);
    EXPECT_EQ(host.logger.RecordsOf(LogRecord::Operation::Error).size(), 0U);
}

TEST_F(UrlImageProviderDownloadTest, AnImageWhoseFolderCannotBeWrittenIsProvidedAndNotCached)
{
    const QString cache = CacheFolder();
    ASSERT_TRUE(QFile::setPermissions(cache, QFile::ReadOwner | QFile::ExeOwner));
    {
        const testsupport::UnprivilegedUser nobody;
        EXPECT_EQ(Provide(target, ScriptedResponse::Status(200, png))->size(), QSize(24, 16));
    }
    EXPECT_TRUE(QFile::setPermissions(cache, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(CacheFiles().isEmpty());
}

TEST_F(UrlImageProviderDownloadTest, AFullDiskStillProvidesTheWholeImage)
{
    const testsupport::FileSizeLimit limit(100);
    EXPECT_EQ(*Provide(target, ScriptedResponse::Status(200, png)), SampleImage());
    EXPECT_EQ(Read(FileOf(url)), png.left(100));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(UrlImageProviderDownloadTest, WithoutANetworkManagerAWarningIsAllThatHappens)
{
    tarnnuq::UrlImageProviderAccess::SetManager(*provider, nullptr);
    provider->Provide(url);
    ExpectWarning(
        "Providers/UrlImageProvider.cpp", "tarnnuq::UrlImageProvider::Provide", L"m_spNetworkAccessManager 为空");
    EXPECT_EQ(host.logger.Texts(), QStringList{QStringLiteral("get image from ") + FileOf(url)});
    RunPastEverything();
    EXPECT_TRUE(answers.empty());
}

TEST_F(UrlImageProviderDownloadTest, TheUnusedAuthorizationSendsThePlainTokenAndLogsIt)
{
    host.baseConfig.currentEnv = "qa";
    QNetworkRequest request;
    tarnnuq::UrlImageProviderAccess::Authorize(*provider, request);
    EXPECT_EQ(request.rawHeader("Authorization"), "token");
    EXPECT_EQ(host.logger.Records(), (std::vector<LogRecord>{{LogRecord::Operation::Debug,
                                         {QStringLiteral("Authorization header: "), QStringLiteral("token")}}}));
}
