#include "ResponseHandlers/CustomReplyBase.h"
#include "TarnNuqService/PendingReplies/PendingReplyFixture.h"

#include <functional>

using tarnnuq::CustomReplyBase;
using testsupport::ScriptedResponse;
using testsupport::WaitFor;

namespace {

/// A pending reply that shows what it holds and keeps what it saw when it was handled.
class ProbeReply final : public CustomReplyBase
{
public:
    explicit ProbeReply(QObject* parent = nullptr) : CustomReplyBase(parent) {}

    QNetworkReply* Reply() const { return m_reply; }

    std::vector<QByteArray> bodies;
    std::vector<std::wstring> errorsAtTheStart;

protected:
    void PrivateHandleReply() override
    {
        errorsAtTheStart.push_back(m_error);
        bodies.push_back(m_reply ? m_reply->readAll() : QByteArray("no reply"));
    }
};

class CustomReplyBaseTest : public testsupport::PendingReplyFixture
{
protected:
    /// Calls something each time the pending reply has been handled.
    static void OnFinished(CustomReplyBase& pending, const std::function<void()>& call)
    {
        QObject::connect(&pending, &CustomReplyBase::Finished, &pending, call);
    }

    static void HandleWithoutWaiting(CustomReplyBase& pending)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(&pending, "HandleReply", Qt::DirectConnection));
    }
};

} // namespace

TEST_F(CustomReplyBaseTest, HandlesItsReplyAndSaysSoOnceAndReleasesIt)
{
    ProbeReply pending;
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json("body"))), 1);
    EXPECT_EQ(pending.bodies, std::vector<QByteArray>{"body"});
    EXPECT_EQ(pending.Error(), L"");
}

TEST_F(CustomReplyBaseTest, IsHandledBeforeItSaysSo)
{
    ProbeReply pending;
    std::size_t handledWhenFinished = 0;
    OnFinished(pending, [&] { handledWhenFinished = pending.bodies.size(); });
    Run(pending, Get(ScriptedResponse::Json("body")));
    EXPECT_EQ(handledWhenFinished, 1U);
}

TEST_F(CustomReplyBaseTest, KeepsTheReplyAliveUntilItHasSaidSo)
{
    ProbeReply pending;
    bool alive = false;
    QNetworkReply* reply = Get(ScriptedResponse::Json("body"));
    OnFinished(pending, [&] { alive = pending.Reply() == reply && reply->isFinished(); });
    Run(pending, reply);
    EXPECT_TRUE(alive);
}

TEST_F(CustomReplyBaseTest, TheBaseAloneEndsWithoutAnError)
{
    CustomReplyBase pending(nullptr);
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json("{}", 500))), 1);
    EXPECT_EQ(pending.Error(), L"");
}

TEST_F(CustomReplyBaseTest, WithoutAReplyItEndsInsideTheCall)
{
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    pending.SetReply(nullptr);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(pending.Error(), L"internal reply is null.");
    EXPECT_TRUE(pending.bodies.empty());
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(CustomReplyBaseTest, WhoConnectsAfterAnEndWithoutAReplyNeverHearsOfIt)
{
    ProbeReply pending;
    pending.SetReply(nullptr);
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    RunPastEverything();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(pending.Error(), L"internal reply is null.");
}

TEST_F(CustomReplyBaseTest, AReplyThatHasAlreadyFinishedIsNeverHandled)
{
    QNetworkReply* reply = Get(ScriptedResponse::Json("body"));
    ASSERT_TRUE(WaitFor([reply] { return reply->isFinished(); }));
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    pending.SetReply(reply);
    RunPastEverything();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_TRUE(pending.bodies.empty());
    EXPECT_EQ(pending.Reply(), reply);
}

TEST_F(CustomReplyBaseTest, ASecondReplyTakesTheFirstOnesPlace)
{
    ProbeReply pending;
    const QPointer<QNetworkReply> first(GetEndless());
    pending.SetReply(first);
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json("second"))), 1);
    EXPECT_EQ(pending.bodies, std::vector<QByteArray>{"second"});
    EXPECT_TRUE(first.isNull());
}

TEST_F(CustomReplyBaseTest, TheFirstReplyIsIgnoredAsSoonAsThereIsASecond)
{
    ProbeReply pending;
    QNetworkReply* first = GetEndless();
    QNetworkReply* second = GetEndless();
    pending.SetReply(first);
    pending.SetReply(second);
    Q_EMIT first->finished();
    EXPECT_TRUE(pending.bodies.empty());
    EXPECT_EQ(pending.Reply(), second);
}

TEST_F(CustomReplyBaseTest, NullAfterAReplyReleasesIt)
{
    ProbeReply pending;
    const QPointer<QNetworkReply> first(GetEndless());
    pending.SetReply(first);
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    pending.SetReply(nullptr);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(WaitFor([&first] { return first.isNull(); }));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(pending.bodies.empty());
}

TEST_F(CustomReplyBaseTest, TheSameReplyAgainIsStillHandledOnce)
{
    ProbeReply pending;
    QNetworkReply* reply = Get(ScriptedResponse::Json("body"));
    pending.SetReply(reply);
    EXPECT_EQ(Run(pending, reply), 1);
    EXPECT_EQ(pending.bodies, std::vector<QByteArray>{"body"});
}

TEST_F(CustomReplyBaseTest, AnEarlierErrorStaysUntilTheHandlingStarts)
{
    ProbeReply pending;
    pending.SetReply(nullptr);
    QNetworkReply* reply = Get(ScriptedResponse::Json("body"));
    pending.SetReply(reply);
    EXPECT_EQ(pending.Error(), L"internal reply is null.");
    Run(pending, reply);
    EXPECT_EQ(pending.errorsAtTheStart, std::vector<std::wstring>{L""});
    EXPECT_EQ(pending.Error(), L"");
}

TEST_F(CustomReplyBaseTest, AReplyThatDiesFirstEndsNothing)
{
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    QNetworkReply* reply = GetEndless();
    pending.SetReply(reply);
    delete reply;
    RunPastEverything();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(pending.Reply(), nullptr);
}

TEST_F(CustomReplyBaseTest, AManagerThatDiesFirstEndsNothing)
{
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    pending.SetReply(GetEndless());
    manager = std::make_unique<QNetworkAccessManager>();
    RunPastEverything();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(pending.Reply(), nullptr);
}

TEST_F(CustomReplyBaseTest, AnAbortedReplyIsHandledLikeAnyOther)
{
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    QNetworkReply* reply = GetEndless();
    pending.SetReply(reply);
    reply->abort();
    EXPECT_EQ(finished.count(), 1);
    RunPastEverything();
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CustomReplyBaseTest, HandledWithoutAReplyItSaysSoAllTheSame)
{
    ProbeReply pending;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    HandleWithoutWaiting(pending);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(pending.bodies, std::vector<QByteArray>{"no reply"});
}

TEST_F(CustomReplyBaseTest, AReceiverMayDeleteThePendingReply)
{
    auto* pending = new ProbeReply;
    const QPointer<ProbeReply> guard(pending);
    const QPointer<QNetworkReply> reply(Get(ScriptedResponse::Json("body")));
    QObject::connect(pending, &CustomReplyBase::Finished, qApp, [pending] { delete pending; });
    pending->SetReply(reply);
    EXPECT_TRUE(WaitFor([&] { return guard.isNull() && reply.isNull(); }));
}

TEST_F(CustomReplyBaseTest, AReceiverMayDeleteThePendingReplyLater)
{
    auto* pending = new ProbeReply;
    const QPointer<ProbeReply> guard(pending);
    const QPointer<QNetworkReply> reply(Get(ScriptedResponse::Json("body")));
    OnFinished(*pending, [pending] { pending->deleteLater(); });
    pending->SetReply(reply);
    EXPECT_TRUE(WaitFor([&] { return guard.isNull() && reply.isNull(); }));
}

TEST_F(CustomReplyBaseTest, AReceiverMayDeleteThePendingReplyThatNeverHadAReply)
{
    auto* pending = new ProbeReply;
    const QPointer<ProbeReply> guard(pending);
    QObject::connect(pending, &CustomReplyBase::Finished, qApp, [pending] { delete pending; });
    pending->SetReply(nullptr);
    EXPECT_TRUE(guard.isNull());
}

TEST_F(CustomReplyBaseTest, AReceiverMayAttachAnotherReply)
{
    ProbeReply pending;
    const QPointer<QNetworkReply> second(GetEndless());
    const QPointer<QNetworkReply> first(Get(ScriptedResponse::Json("first")));
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    OnFinished(pending, [&] { pending.SetReply(second); });
    pending.SetReply(first);
    EXPECT_TRUE(WaitFor([&first] { return first.isNull(); }));
    RunPastEverything();
    // The second one neither went with the first nor was handled with it.
    ASSERT_EQ(pending.Reply(), second.data());
    ASSERT_FALSE(second.isNull());
    EXPECT_EQ(finished.count(), 1);
    second->abort();
    EXPECT_EQ(finished.count(), 2);
    EXPECT_EQ(pending.bodies, (std::vector<QByteArray>{"first", ""}));
}

TEST_F(CustomReplyBaseTest, AReceiverMayDetachTheReply)
{
    ProbeReply pending;
    bool detached = false;
    const QSignalSpy finished(&pending, &CustomReplyBase::Finished);
    const QPointer<QNetworkReply> reply(Get(ScriptedResponse::Json("body")));
    OnFinished(pending, [&] {
        if (!detached) {
            detached = true;
            pending.SetReply(nullptr);
        }
    });
    pending.SetReply(reply);
    EXPECT_TRUE(WaitFor([&reply] { return reply.isNull(); }));
    EXPECT_EQ(finished.count(), 2);
    EXPECT_EQ(pending.Error(), L"internal reply is null.");
}

TEST_F(CustomReplyBaseTest, ItsEndReleasesARunningReply)
{
    const QPointer<QNetworkReply> reply(GetEndless());
    {
        ProbeReply pending;
        pending.SetReply(reply);
    }
    EXPECT_FALSE(reply.isNull());
    // Nobody is left to react to it.
    Q_EMIT reply->finished();
    EXPECT_TRUE(WaitFor([&reply] { return reply.isNull(); }));
}

TEST_F(CustomReplyBaseTest, ItsEndReleasesAHandledReplyASecondTimeWithoutHarm)
{
    auto pending = std::make_unique<ProbeReply>();
    const QPointer<QNetworkReply> reply(GetEndless());
    pending->SetReply(reply);
    reply->abort();
    EXPECT_EQ(pending->bodies.size(), 1U);
    pending.reset();
    EXPECT_TRUE(WaitFor([&reply] { return reply.isNull(); }));
}

TEST_F(CustomReplyBaseTest, AHandledReplyIsNotHandledAgain)
{
    ProbeReply pending;
    QNetworkReply* reply = GetEndless();
    pending.SetReply(reply);
    reply->abort();
    Q_EMIT reply->finished();
    EXPECT_EQ(pending.bodies.size(), 1U);
}

TEST_F(CustomReplyBaseTest, AParentTakesThePendingReplyAndItsReplyAlong)
{
    auto parent = std::make_unique<QObject>();
    const QPointer<ProbeReply> pending(new ProbeReply(parent.get()));
    const QPointer<QNetworkReply> reply(GetEndless());
    pending->SetReply(reply);
    EXPECT_EQ(pending->parent(), parent.get());
    parent.reset();
    EXPECT_TRUE(pending.isNull());
    EXPECT_TRUE(WaitFor([&reply] { return reply.isNull(); }));
}

TEST_F(CustomReplyBaseTest, TwoAtOnceGetTheirOwnReplies)
{
    ProbeReply one;
    ProbeReply two;
    one.SetReply(Get(ScriptedResponse::Json("one").Delayed(std::chrono::milliseconds(50))));
    two.SetReply(Get(ScriptedResponse::Json("two")));
    EXPECT_TRUE(WaitFor([&] { return !one.bodies.empty() && !two.bodies.empty(); }));
    EXPECT_EQ(one.bodies, std::vector<QByteArray>{"one"});
    EXPECT_EQ(two.bodies, std::vector<QByteArray>{"two"});
}
