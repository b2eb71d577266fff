#include "Pictures/ThumbnailLoader.h"

#include "Pictures/PictureRequest.h"
#include "Requests/HttpChannel.h"
#include "TarnNuqService/Providers/ImageSample.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/WaitFor.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <vector>

namespace componentlibrary {
namespace {

using testsupport::ImageBytes;
using testsupport::PromisingPng;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;
using testsupport::WaitFor;

class ThumbnailLoaderTest : public ::testing::Test
{
protected:
    ThumbnailLoaderTest()
    {
        host.Remove(&hostsdk::HostServices::paths);
        QDir(ThumbnailCache().Folder()).removeRecursively();
        settings.retry.firstDelay = 20;
        settings.dice = [] { return 0.5; };
    }

    /// Made when it is first asked for, so that a test can change the settings before.
    ThumbnailLoader& Loader()
    {
        if (loader == nullptr) {
            channel = std::make_unique<HttpChannel>(settings);
            loader = std::make_unique<ThumbnailLoader>(*channel, ThumbnailCache(limit));
        }
        return *loader;
    }

    QString Url(const QString& target) const { return server.BaseUrl() + target; }

    ThumbnailLoader::Receiver Receiver()
    {
        return [this](const Thumbnail& thumbnail) { answers.push_back(thumbnail); };
    }

    bool WaitForAnswers(std::size_t count)
    {
        return WaitFor([this, count] { return answers.size() >= count; });
    }

    /// Loads one picture.
    Thumbnail Load(const QString& url)
    {
        const std::size_t before = answers.size();
        const ThumbnailLoader::Ticket ticket = Loader().Load(url, Receiver());
        EXPECT_EQ(answers.size(), before) << "answered inside Load()";
        EXPECT_TRUE(WaitForAnswers(before + 1));
        return answers.size() > before ? answers.back() : Thumbnail();
    }

    static void Write(const QString& url, const QByteArray& content)
    {
        QFile file(ThumbnailCache::FileOf(url));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray Read(const QString& url)
    {
        QFile file(ThumbnailCache::FileOf(url));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    const QByteArray png = ImageBytes(SampleImage());
    testsupport::RecordingHost host;
    testsupport::LoopbackServer server;
    ChannelSettings settings;
    qint64 limit = ThumbnailCache::kLimit;
    std::unique_ptr<HttpChannel> channel;
    std::unique_ptr<ThumbnailLoader> loader;
    std::vector<Thumbnail> answers;
};

TEST_F(ThumbnailLoaderTest, FetchesAPictureOnceAndThenReadsTheFile)
{
    server.On("/a.png", ScriptedResponse::Content(png, "image/png"));
    const Thumbnail fetched = Load(Url(QStringLiteral("/a.png")));
    EXPECT_FALSE(fetched.error.IsError());
    EXPECT_FALSE(fetched.isFromCache);
    EXPECT_EQ(fetched.image, SampleImage());
    EXPECT_EQ(fetched.format, "png");
    EXPECT_EQ(fetched.url, Url(QStringLiteral("/a.png")));
    EXPECT_EQ(fetched.file, ThumbnailCache::FileOf(fetched.url));
    EXPECT_EQ(Read(fetched.url), png);
    const Thumbnail cached = Load(Url(QStringLiteral("/a.png")));
    EXPECT_TRUE(cached.isFromCache);
    EXPECT_EQ(cached.image, SampleImage());
    EXPECT_EQ(cached.file, fetched.file);
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(ThumbnailLoaderTest, AsksAsForAPictureAndWithoutTheToken)
{
    server.On("/a.png", ScriptedResponse::Status(200, png));
    Load(Url(QStringLiteral("/a.png")));
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests()[0].Header("Accept"), "image/*");
    EXPECT_EQ(server.Requests()[0].HeaderCount("Authorization"), 0);
}

TEST_F(ThumbnailLoaderTest, ServesManyReceiversByOneRequest)
{
    server.On("/a.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(30)));
    std::vector<ThumbnailLoader::Ticket> tickets;
    for (int i = 0; i < 20; ++i)
        tickets.push_back(Loader().Load(Url(QStringLiteral("/a.png")), Receiver()));
    ASSERT_TRUE(WaitFor([this] { return !server.Requests().empty(); }));
    tickets.push_back(Loader().Load(Url(QStringLiteral("/a.png")), Receiver()));
    ASSERT_TRUE(WaitForAnswers(21));
    for (const Thumbnail& answer : answers)
        EXPECT_EQ(answer.image, SampleImage());
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(ThumbnailLoaderTest, SendsAtMostSixAtOnceToAHost)
{
    constexpr int count = 30;
    std::vector<ThumbnailLoader::Ticket> tickets;
    for (int i = 0; i < count; ++i) {
        const QString target = QStringLiteral("/%1.png").arg(i);
        server.On(target.toLatin1(),
            ScriptedResponse::Status(200, ImageBytes(SampleImage(i + 1, 2))).Delayed(std::chrono::milliseconds(40)));
        tickets.push_back(Loader().Load(Url(target), Receiver()));
    }
    int most = 0;
    ASSERT_TRUE(WaitFor([&] {
        most = std::max(most, channel->Queue().Running(server.Url()));
        return answers.size() == count;
    }));
    EXPECT_EQ(most, 6);
    EXPECT_LE(server.ConnectionCount(), 6);
    for (const Thumbnail& answer : answers)
        EXPECT_EQ(answer.url, Url(QStringLiteral("/%1.png").arg(answer.image.width() - 1)));
}

TEST_F(ThumbnailLoaderTest, GivenUpByAllItsReceiversARequestIsDropped)
{
    server.On("/a.png", ScriptedResponse::Status(200, png).CutAt(
                            ScriptedResponse::CutPoint::AfterHeaders, ScriptedResponse::CutAction::Stall));
    ThumbnailLoader::Ticket one = Loader().Load(Url(QStringLiteral("/a.png")), Receiver());
    ThumbnailLoader::Ticket other = Loader().Load(Url(QStringLiteral("/a.png")), Receiver());
    ASSERT_TRUE(WaitFor([this] { return channel->Queue().Running(server.Url()) == 1; }));
    one.reset();
    EXPECT_EQ(channel->Queue().Running(server.Url()), 1);
    other.reset();
    EXPECT_EQ(channel->Queue().Running(server.Url()), 0);
    server.On("/b.png", ScriptedResponse::Status(200, png));
    Load(Url(QStringLiteral("/b.png")));
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(ThumbnailLoaderTest, AReceiverThatGaveUpHearsNothingWhileTheOthersDo)
{
    server.On("/a.png", ScriptedResponse::Status(200, png));
    ThumbnailLoader::Ticket given =
        Loader().Load(Url(QStringLiteral("/a.png")), [](const Thumbnail&) { FAIL() << "given up"; });
    const ThumbnailLoader::Ticket kept = Loader().Load(Url(QStringLiteral("/a.png")), Receiver());
    given.reset();
    EXPECT_TRUE(WaitForAnswers(1));
}

TEST_F(ThumbnailLoaderTest, AReceiverMayGiveUpAnotherAskAgainAndDeleteTheLoader)
{
    server.On("/a.png", ScriptedResponse::Status(200, png));
    const QString url = Url(QStringLiteral("/a.png"));
    ThumbnailLoader::Ticket third;
    ThumbnailLoader::Ticket fourth;
    const ThumbnailLoader::Ticket first = Loader().Load(url, [&](const Thumbnail& thumbnail) {
        third.reset();
        fourth = Loader().Load(url, [&](const Thumbnail& again) {
            EXPECT_TRUE(again.isFromCache);
            loader.reset();
            answers.push_back(again);
        });
        answers.push_back(thumbnail);
    });
    const ThumbnailLoader::Ticket second = Loader().Load(url, Receiver());
    third = Loader().Load(url, [](const Thumbnail&) { FAIL() << "given up by the first"; });
    EXPECT_TRUE(WaitForAnswers(3));
    EXPECT_EQ(loader, nullptr);
}

TEST_F(ThumbnailLoaderTest, ALoaderThatGoesAnswersNobody)
{
    server.On("/a.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(20)));
    const ThumbnailLoader::Ticket ticket =
        Loader().Load(Url(QStringLiteral("/a.png")), [](const Thumbnail&) { FAIL() << "the loader is gone"; });
    ASSERT_TRUE(WaitFor([this] { return !server.Requests().empty(); }));
    loader.reset();
    server.On("/b.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(60)));
    Load(Url(QStringLiteral("/b.png")));
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(ThumbnailLoaderTest, AFileThatIsNoPictureIsRemovedAndAskedForOnce)
{
    const QString url = Url(QStringLiteral("/a.png"));
    const std::vector<QByteArray> broken = {
        "", "<html>sign in</html>", png.left(png.size() / 2), QByteArray(png.size(), '\0'), PromisingPng(50000, 50000)};
    for (const QByteArray& content : broken) {
        Write(url, content);
        server.Enqueue(ScriptedResponse::Status(200, png));
        const std::size_t before = server.Requests().size();
        EXPECT_EQ(Load(url).image, SampleImage()) << content.size() << " bytes";
        EXPECT_EQ(server.Requests().size(), before + 1);
        EXPECT_EQ(Read(url), png);
    }
}

TEST_F(ThumbnailLoaderTest, ABrokenFileWhoseAnswerIsBrokenTooIsAnErrorAfterThatOneRequest)
{
    const QString url = Url(QStringLiteral("/a.png"));
    Write(url, "no picture");
    server.On("/a.png", ScriptedResponse::Status(200, "no picture either"));
    EXPECT_EQ(Load(url).error.code, ErrorCode::ServerNotJson);
    EXPECT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(Read(url), "none");
}

TEST_F(ThumbnailLoaderTest, AnAnswerThatIsNoPictureIsAskedForOnceMore)
{
    server.On("/a.png", ScriptedResponse::Status(200, png.left(png.size() / 2)));
    server.On("/a.png", ScriptedResponse::Status(200, png));
    EXPECT_EQ(Load(Url(QStringLiteral("/a.png"))).image, SampleImage());
    EXPECT_EQ(server.Requests().size(), 2U);
}

TEST_F(ThumbnailLoaderTest, AnAnswerThatStaysNoPictureIsAnErrorAndNotKept)
{
    server.On("/a.png", ScriptedResponse::Content("no picture", "image/png"));
    const Thumbnail answer = Load(Url(QStringLiteral("/a.png")));
    EXPECT_EQ(answer.error.code, ErrorCode::ServerNotJson);
    EXPECT_EQ(answer.error.operation, Operation::LoadThumbnail);
    EXPECT_EQ(answer.error.address, Url(QStringLiteral("/a.png")));
    EXPECT_EQ(answer.error.evidence, QStringList{QStringLiteral("content type: image/png")});
    EXPECT_TRUE(answer.image.isNull());
    EXPECT_EQ(answer.file, QString());
    EXPECT_EQ(server.Requests().size(), 2U);
    EXPECT_EQ(Read(Url(QStringLiteral("/a.png"))), "none");
}

struct Refusal
{
    const char* name;
    ScriptedResponse response;
    ErrorCode code;
};

TEST_F(ThumbnailLoaderTest, WhatIsNoGoodAnswerIsAnErrorOfItsKindAndNeverKept)
{
    settings.retry.tries = 1;
    const std::vector<Refusal> refusals = {
        {"an error that brings a picture", ScriptedResponse::Content(png, "image/png", 404), ErrorCode::NotFound},
        {"a sign-in page", ScriptedResponse::Content("<html>", "text/html"), ErrorCode::ServerHtmlPage},
        {"nothing", ScriptedResponse::Status(200), ErrorCode::ServerEmptyAnswer},
        {"no content", ScriptedResponse::Status(204), ErrorCode::ServerEmptyAnswer},
        {"a part", ScriptedResponse::Status(206, png), ErrorCode::ServerPartialAnswer},
        {"not modified", ScriptedResponse::Status(304), ErrorCode::ServerUnexpectedStatus},
        {"too many pixels", ScriptedResponse::Status(200, PromisingPng(50000, 50000)), ErrorCode::ServerTooLarge},
        {"too many bytes", ScriptedResponse::Status(200, png).WithDeclaredLength(PictureRequest::kLargestBody + 1),
            ErrorCode::ServerTooLarge},
        {"a cut body", ScriptedResponse::Status(200, png).WithDeclaredLength(png.size() + 1), ErrorCode::NetworkClosed},
    };
    for (std::size_t i = 0; i < refusals.size(); ++i) {
        const QString target = QStringLiteral("/%1.png").arg(i);
        server.On(target.toLatin1(), refusals[i].response);
        EXPECT_EQ(Load(Url(target)).error.code, refusals[i].code) << refusals[i].name;
        EXPECT_EQ(Read(Url(target)), "none") << refusals[i].name;
    }
}

TEST_F(ThumbnailLoaderTest, FollowsARedirection)
{
    server.On("/a.png", ScriptedResponse::Redirect("/b.png"));
    server.On("/b.png", ScriptedResponse::Status(200, png));
    EXPECT_EQ(Load(Url(QStringLiteral("/a.png"))).image, SampleImage());
    EXPECT_EQ(Read(Url(QStringLiteral("/a.png"))), png);
}

TEST_F(ThumbnailLoaderTest, OfflineServesWhatIsThereAndOpensNoConnection)
{
    settings.isOffline = true;
    Write(Url(QStringLiteral("/a.png")), png);
    EXPECT_EQ(Load(Url(QStringLiteral("/a.png"))).image, SampleImage());
    EXPECT_EQ(Load(Url(QStringLiteral("/b.png"))).error.code, ErrorCode::Offline);
    EXPECT_EQ(server.ConnectionCount(), 0);
}

TEST_F(ThumbnailLoaderTest, RefusesAddressesThatAreNotOfTheWeb)
{
    for (const char* url : {"", "file:///etc/hostname", "ftp://h/a.png", "thumbnails/a.png", "http://"})
        EXPECT_EQ(Load(QString::fromLatin1(url)).error.code, ErrorCode::ConfigurationBadEndpoint) << url;
}

TEST_F(ThumbnailLoaderTest, AnsweredThoughItCannotBeKept)
{
    server.On("/a.png", ScriptedResponse::Status(200, png));
    const QString folder = Loader().Cache().Folder();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const Thumbnail answer = Load(Url(QStringLiteral("/a.png")));
    EXPECT_EQ(answer.image, SampleImage());
    EXPECT_EQ(answer.file, QString());
    EXPECT_TRUE(inTheWay.remove());
}

TEST_F(ThumbnailLoaderTest, KeepsTheCacheBelowItsLimit)
{
    limit = png.size() * 8;
    for (int i = 0; i < 24; ++i) {
        const QString target = QStringLiteral("/%1.png").arg(i);
        server.On(target.toLatin1(), ScriptedResponse::Status(200, png));
        Load(Url(target));
    }
    EXPECT_TRUE(WaitFor([this] { return Loader().Cache().Measure().bytes <= limit; }));
    EXPECT_EQ(Read(Url(QStringLiteral("/23.png"))), png);
}

} // namespace
} // namespace componentlibrary
