#include "ResponseHandlers/CustomFileReply.h"
#include "TarnNuqService/Providers/NewUrlImageProviderAccess.h"
#include "TarnNuqService/Providers/ProviderFixture.h"
#include "TarnNuqService/Providers/UrlImageProviderAccess.h"
#include "support/FileSizeLimit.h"
#include "support/NamedCase.h"

#include <QSignalSpy>

using tarnnuq::CustomFileReply;
using testsupport::ImageBytes;
using testsupport::LogRecord;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;
using testsupport::WaitFor;

namespace {

class NewUrlImageProviderTest : public testsupport::ProviderFixture
{
protected:
    std::unique_ptr<CustomFileReply> Start(const std::wstring& address)
    {
        return std::unique_ptr<CustomFileReply>(access.Provider().ProvideImageFile(address));
    }

    /// Downloads a file and waits for its one end.
    /// @return the error
    std::wstring Download(const std::wstring& address)
    {
        const std::unique_ptr<CustomFileReply> reply = Start(address);
        EXPECT_NE(reply, nullptr);
        const QSignalSpy finished(reply.get(), &tarnnuq::CustomReplyBase::Finished);
        EXPECT_TRUE(WaitFor([&finished] { return finished.count() > 0; }));
        EXPECT_EQ(finished.count(), 1);
        return reply->Error();
    }

    std::wstring Download(const ScriptedResponse& response)
    {
        server.On("/pump.png", response);
        return Download(url);
    }

    const std::wstring url = Url(QStringLiteral("/pump.png"));
    const QByteArray png = ImageBytes(SampleImage());
    tarnnuq::NewUrlImageProviderAccess access;
};

struct Body : testsupport::NamedCase
{
    ScriptedResponse response;
    QByteArray saved;
};

class SavedBodyTest : public NewUrlImageProviderTest, public ::testing::WithParamInterface<Body>
{
};

struct Failure : testsupport::NamedCase
{
    ScriptedResponse response;
    std::wstring errorStart;
};

class FailedDownloadTest : public NewUrlImageProviderTest, public ::testing::WithParamInterface<Failure>
{
};

const QByteArray Png = ImageBytes(SampleImage());

} // namespace

TEST_F(NewUrlImageProviderTest, TheReplyKnowsItsFileAndTheOnlyRecordIsThatFile)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    const std::unique_ptr<CustomFileReply> reply = Start(url);
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(reply->parent(), nullptr);
    EXPECT_EQ(reply->GetSaveFilePath(), FileOf(url).toStdWString());
    EXPECT_EQ(reply->Error(), L"");
    EXPECT_EQ(host.logger.Records(), (std::vector<LogRecord>{{LogRecord::Operation::Info, {FileOf(url)}}}));
    EXPECT_FALSE(QFile::exists(FileOf(url))) << "nothing is written before the answer";
}

TEST_F(NewUrlImageProviderTest, TheHostIsAskedForTheFileOfTheUrlAsItIsWithTheExtensionPng)
{
    const std::wstring odd = Url(QStringLiteral("/%20 水泵.JPG?size=1#x%1"));
    server.On("/%20%20%E6%B0%B4%E6%B3%B5.JPG?size=1", ScriptedResponse::Status(200, png));
    EXPECT_EQ(Download(odd), L"");
    EXPECT_EQ(host.paths.questions, (std::vector<std::pair<std::wstring, std::wstring>>{{odd, L".png"}}));
    EXPECT_EQ(Read(FileOf(odd)), png);
}

TEST_P(SavedBodyTest, IsTheAnswerByteForByteWithoutAnError)
{
    EXPECT_EQ(Download(GetParam().response), L"");
    EXPECT_EQ(Read(FileOf(url)), GetParam().saved);
    EXPECT_EQ(host.logger.Records().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Answers, SavedBodyTest,
    ::testing::Values(Body{{"AnImage"}, ScriptedResponse::Content(Png, "image/png"), Png},
        Body{{"APage"}, ScriptedResponse::Content("<html>", "text/html"), "<html>"},
        Body{{"Nothing"}, ScriptedResponse::Status(200), ""}, Body{{"NoContent"}, ScriptedResponse::Status(204), ""},
        Body{{"NotModified"}, ScriptedResponse::Status(304), ""},
        Body{{"ARedirection"}, ScriptedResponse::Redirect("/elsewhere"), "<html>moved</html>"}),
    testsupport::RowName());

TEST_P(FailedDownloadTest, IsReportedByTheReplyAndMakesNoFile)
{
    const std::wstring error = Download(GetParam().response);
    EXPECT_EQ(error.substr(0, GetParam().errorStart.size()), GetParam().errorStart);
    EXPECT_TRUE(CacheFiles().isEmpty());
    EXPECT_EQ(host.logger.RecordsOf(LogRecord::Operation::Error).size(), 1U);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

INSTANTIATE_TEST_SUITE_P(Answers, FailedDownloadTest,
    ::testing::Values(
        Failure{{"NotFound"}, ScriptedResponse::Content(Png, "image/png", 404), L"request error:http code - 404, "},
        Failure{{"ServerError"}, ScriptedResponse::Status(500), L"request error:http code - 500, "},
        Failure{{"CutBody"}, ScriptedResponse::Status(200, Png).WithDeclaredLength(Png.size() + 1),
            L"request error:http code - 200, message - Connection closed"},
        Failure{{"ClosedBeforeTheHeaders"},
            ScriptedResponse::Status(200, Png).CutAt(ScriptedResponse::CutPoint::BeforeHeaders),
            L"request error:http code - 0, message - Connection closed"}),
    testsupport::RowName());

TEST_F(NewUrlImageProviderTest, AFileThatIsThereIsDownloadedAgainAndOverwritten)
{
    Write(FileOf(url), "old and longer than what comes now" + png);
    EXPECT_EQ(Download(ScriptedResponse::Status(200, png)), L"");
    EXPECT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(Read(FileOf(url)), png);
}

TEST_F(NewUrlImageProviderTest, TwoCallsForOneUrlAreTwoDownloadsToOneFile)
{
    const QByteArray later = ImageBytes(SampleImage(3, 3));
    server.On("/pump.png", ScriptedResponse::Status(200, later).Delayed(std::chrono::milliseconds(60)));
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    const std::unique_ptr<CustomFileReply> slow = Start(url);
    ASSERT_TRUE(WaitFor([this] { return server.Requests().size() == 1; }));
    const std::unique_ptr<CustomFileReply> quick = Start(url);
    EXPECT_NE(slow, quick);
    const QSignalSpy slowFinished(slow.get(), &tarnnuq::CustomReplyBase::Finished);
    const QSignalSpy quickFinished(quick.get(), &tarnnuq::CustomReplyBase::Finished);
    ASSERT_TRUE(WaitFor([&] { return quickFinished.count() == 1; }));
    EXPECT_EQ(Read(FileOf(url)), png);
    ASSERT_TRUE(WaitFor([&] { return slowFinished.count() == 1; }));
    EXPECT_EQ(Read(FileOf(url)), later);
    EXPECT_EQ(server.Requests().size(), 2U);
}

TEST_F(NewUrlImageProviderTest, TheFileIsTheOneThatImagesAreProvidedFrom)
{
    EXPECT_EQ(Download(ScriptedResponse::Status(200, png)), L"");
    tarnnuq::UrlImageProvider images(nullptr);
    QSize size;
    QObject::connect(&images, &tarnnuq::UrlImageProvider::OnProvided,
        [&size](const std::wstring&, const std::shared_ptr<QImage>& image) { size = image->size(); });
    images.Provide(url);
    EXPECT_EQ(size, QSize(24, 16));
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(NewUrlImageProviderTest, TheRequestCarriesNoAuthorization)
{
    host.baseConfig.currentEnv = "qa";
    Download(ScriptedResponse::Status(200, png));
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests()[0].method, "GET");
    EXPECT_EQ(server.Requests()[0].HeaderCount("Authorization"), 0);
    EXPECT_TRUE(host.logger.RecordsOf(LogRecord::Operation::Debug).empty());
}

TEST_F(NewUrlImageProviderTest, ADroppedReplyMakesNoFile)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(30)));
    Start(url).reset();
    server.On("/late.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(80)));
    EXPECT_EQ(Download(Url(QStringLiteral("/late.png"))), L"");
    EXPECT_EQ(CacheFiles().size(), 1);
}

TEST_F(NewUrlImageProviderTest, AFileThatCannotBeOpenedIsAnError)
{
    host.paths.folder = (folder.filePath(QStringLiteral("missing")) + QLatin1Char('/')).toStdWString();
    EXPECT_EQ(Download(ScriptedResponse::Status(200, png)), L"fail to open file to write.");
}

TEST_F(NewUrlImageProviderTest, AFullDiskIsAnErrorAndWhatWasWrittenStays)
{
    const testsupport::FileSizeLimit limit(10);
    EXPECT_EQ(Download(ScriptedResponse::Status(200, png)), L"error on saving file.");
    EXPECT_EQ(Read(FileOf(url)), png.left(10));
}

TEST_F(NewUrlImageProviderTest, WithoutANetworkManagerAWarningIsAllThatHappens)
{
    access.SetManager(nullptr);
    EXPECT_EQ(access.Provider().ProvideImageFile(url), nullptr);
    ExpectWarning("Providers/NewUrlImageProvider.cpp", "tarnnuq::NewUrlImageProvider::ProvideImageFile",
        L"m_spNetworkAccessManager 为空");
    EXPECT_EQ(host.logger.Texts(), QStringList{FileOf(url)});
}

TEST_F(NewUrlImageProviderTest, TheUnusedAuthorizationSendsThePlainTokenAndLogsIt)
{
    host.baseConfig.currentEnv = "qa";
    QNetworkRequest request;
    access.Authorize(request);
    EXPECT_EQ(request.rawHeader("Authorization"), "token");
    EXPECT_EQ(host.logger.Records(), (std::vector<LogRecord>{{LogRecord::Operation::Debug,
                                         {QStringLiteral("Authorization header: "), QStringLiteral("token")}}}));
}
