// Receivers that delete what they hear from, providers that go away before their answers, and connections that copy.
#include "TarnNuqService/Providers/UrlImageProviderFixture.h"

#include <QMetaMethod>
#include <QNetworkReply>
#include <QPointer>
#include <QSignalSpy>
#include <QThread>

Q_DECLARE_METATYPE(std::wstring)
Q_DECLARE_METATYPE(std::shared_ptr<QImage>)

using tarnnuq::UrlImageProvider;
using tarnnuq::UrlImageProviderAccess;
using testsupport::ImageBytes;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;
using testsupport::WaitFor;

namespace {

class UrlImageProviderLifetimeTest : public testsupport::UrlImageProviderFixture
{
protected:
    const QString target = QStringLiteral("/pump.png");
    const std::wstring url = Url(target);
    const QByteArray png = ImageBytes(SampleImage());
};

} // namespace

TEST_F(UrlImageProviderLifetimeTest, AReceiverMayDeleteTheProviderOnACachedAnswer)
{
    Write(FileOf(url), png);
    QObject::connect(provider.get(), &UrlImageProvider::OnProvided, [this] { provider.reset(); });
    provider->Provide(url);
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_EQ(provider, nullptr);
}

TEST_F(UrlImageProviderLifetimeTest, AReceiverMayDeleteTheProviderOnADownloadedAnswer)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    const std::weak_ptr<QNetworkAccessManager> manager = UrlImageProviderAccess::Manager(*provider);
    bool managerLives = false;
    QObject::connect(provider.get(), &UrlImageProvider::OnProvided, [&] {
        provider.reset();
        managerLives = !manager.expired();
    });
    provider->Provide(url);
    EXPECT_TRUE(WaitFor([&manager] { return manager.expired(); })) << "the manager goes as soon as it can";
    EXPECT_TRUE(managerLives) << "not in the middle of its reply's signal";
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_EQ(Read(FileOf(url)), png);
}

TEST_F(UrlImageProviderLifetimeTest, AReceiverMayDeleteTheProviderOnAFailure)
{
    server.On("/pump.png", ScriptedResponse::Status(500));
    QObject::connect(provider.get(), &UrlImageProvider::OnProvided, [this] { provider.reset(); });
    provider->Provide(url);
    EXPECT_TRUE(WaitForAnswers(1));
    RunPastEverything();
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(UrlImageProviderLifetimeTest, AProviderDeletedInAnAnswerNeverGivesTheOthers)
{
    for (int i = 0; i < 6; ++i) {
        const QString each = QStringLiteral("/%1.png").arg(i);
        server.On(each.toLatin1(), ScriptedResponse::Status(200, png));
        provider->Provide(Url(each));
    }
    QObject::connect(provider.get(), &UrlImageProvider::OnProvided, [this] { provider.reset(); });
    EXPECT_TRUE(WaitForAnswers(1));
    RunPastEverything();
    RunPastEverything();
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_EQ(CacheFiles().size(), 1);
}

TEST_F(UrlImageProviderLifetimeTest, AProviderDeletedWhileItWaitsNeverAnswersAndWritesNothing)
{
    server.On("/pump.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(30)));
    provider->Provide(url);
    ASSERT_TRUE(WaitFor([this] { return !server.Requests().empty(); }));
    const std::weak_ptr<QNetworkAccessManager> manager = UrlImageProviderAccess::Manager(*provider);
    provider.reset();
    EXPECT_TRUE(manager.expired());
    server.On("/late", ScriptedResponse::Status(200).Delayed(std::chrono::milliseconds(80)));
    UrlImageProvider other(nullptr);
    QObject::connect(
        &other, &UrlImageProvider::OnProvided, [this](const std::wstring& text, const std::shared_ptr<QImage>& image) {
            answers.push_back({text, image});
        });
    other.Provide(Url(QStringLiteral("/late")));
    ASSERT_TRUE(WaitForAnswers(1));
    EXPECT_EQ(answers[0].url, Url(QStringLiteral("/late")));
    EXPECT_FALSE(QFile::exists(FileOf(url)));
}

TEST_F(UrlImageProviderLifetimeTest, AParentTakesItsProviderAlong)
{
    auto parent = std::make_unique<QObject>();
    const QPointer<UrlImageProvider> child = new UrlImageProvider(parent.get());
    server.On("/pump.png", ScriptedResponse::Status(200, png).Delayed(std::chrono::milliseconds(30)));
    child->Provide(url);
    parent.reset();
    EXPECT_TRUE(child.isNull());
}

TEST_F(UrlImageProviderLifetimeTest, AReceiverMayAskAgainInsideAnAnswer)
{
    server.On("/pump.png", ScriptedResponse::Status(404));
    server.On("/pump.png", ScriptedResponse::Status(200, png));
    QObject::connect(provider.get(), &UrlImageProvider::OnProvided, [this](const std::wstring& text) {
        if (answers.size() < 3) {
            provider->Provide(text);
        }
    });
    provider->Provide(url);
    ASSERT_TRUE(WaitForAnswers(3));
    EXPECT_EQ(answers[0].image, nullptr);
    EXPECT_EQ(answers[1].image->size(), QSize(24, 16));
    EXPECT_EQ(answers[2].image->size(), QSize(24, 16));
    EXPECT_EQ(server.Requests().size(), 2U) << "the third comes from the file";
}

TEST_F(UrlImageProviderLifetimeTest, AQueuedConnectionCopiesTheAnswer)
{
    Write(FileOf(url), png);
    QObject receiver;
    std::vector<Answer> queued;
    QObject::connect(
        provider.get(), &UrlImageProvider::OnProvided, &receiver,
        [&queued](const std::wstring& text, const std::shared_ptr<QImage>& image) {
            queued.push_back({text, image});
        },
        Qt::QueuedConnection);
    provider->Provide(url);
    EXPECT_TRUE(queued.empty());
    provider.reset();
    ASSERT_TRUE(WaitFor([&queued] { return !queued.empty(); }));
    EXPECT_EQ(queued[0].url, url);
    EXPECT_EQ(queued[0].image->size(), QSize(24, 16));
}

TEST_F(UrlImageProviderLifetimeTest, ASignalSpyCopiesTheAnswer)
{
    Write(FileOf(url), png);
    QSignalSpy spy(provider.get(), &UrlImageProvider::OnProvided);
    ASSERT_TRUE(spy.isValid());
    provider->Provide(url);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<std::wstring>(), url);
    EXPECT_EQ(spy.at(0).at(1).value<std::shared_ptr<QImage>>()->size(), QSize(24, 16));
}

TEST_F(UrlImageProviderLifetimeTest, EveryAnswerComesOnTheThreadOfTheProvider)
{
    Write(FileOf(url), png);
    server.On("/other.png", ScriptedResponse::Status(200, png));
    std::vector<QThread*> threads;
    QObject::connect(
        provider.get(), &UrlImageProvider::OnProvided, [&threads] { threads.push_back(QThread::currentThread()); });
    provider->Provide(url);
    Provide(Url(QStringLiteral("/other.png")));
    EXPECT_EQ(threads, (std::vector<QThread*>{QThread::currentThread(), QThread::currentThread()}));
}

TEST_F(UrlImageProviderLifetimeTest, RepliesAreReleasedAndHandledOnce)
{
    Provide(target, ScriptedResponse::Status(200, png));
    Provide(QStringLiteral("/missing.png"), ScriptedResponse::Status(404));
    const std::shared_ptr<QNetworkAccessManager> manager = UrlImageProviderAccess::Manager(*provider);
    EXPECT_TRUE(WaitFor([&manager] { return manager->findChildren<QNetworkReply*>().isEmpty(); }));
}
