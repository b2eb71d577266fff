#include "FaultRelay/FaultRelay.h"

#include "FaultRelay/FaultRelayThread.h"
#include "nuq-cloud/support/TestServer.h"
#include "support/LoopbackServer.h"
#include "support/WaitFor.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

namespace cloudtest {
namespace {

using nuqcloud::FaultRelayThread;
using nuqcloud::ParseFaultRule;
using Clock = std::chrono::steady_clock;

const std::string kPath = "/api/v1/projects";
const std::string kBody = R"({"code":"success","message":"","data":[{"id":"p1","name":"Project one"},)"
                          R"({"id":"p2","name":"Empty project"}]})";

/// A relay in front of a server; the client sees what the relay lets through.
class Relay : public ::testing::Test
{
protected:
    /// All bytes of the answer, when the relay closes behind them.
    std::string Answer(const std::string& fault)
    {
        RawClient client(m_relay.Port());
        client.Send(Request(kPath, {kToken, "X-Nuq-Fault: " + fault, "X-Request-Id: id"}));
        const std::string bytes = client.ReadAll();
        EXPECT_TRUE(client.WasClosed()) << fault;
        m_reset = client.WasReset();
        return bytes;
    }

    std::string WholeAnswer() const
    {
        const RawReply reply = Fetch(m_server.Port(), kPath, {kToken, "X-Request-Id: id"});
        return reply.head + reply.body;
    }

    const TestServer m_server;
    FaultRelayThread m_relay{static_cast<quint16>(m_server.Port())};
    bool m_reset = false;
};

TEST_F(Relay, PassesEverythingOnUnchanged)
{
    RawClient client(m_relay.Port());
    for (int i = 0; i < 20; ++i) {
        client.Send(Request(kPath, {kToken, "X-Request-Id: id"}));
        const RawReply reply = client.ReadReply();
        ASSERT_EQ(reply.head + reply.body, WholeAnswer());
    }
}

TEST_F(Relay, AnswersRequestsThatWereSentTogetherInTheirOrder)
{
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken}) + Request("/api/none", {kToken}, "HEAD") + Request(kPath));
    EXPECT_EQ(client.ReadReply().Status(), 200);
    EXPECT_EQ(client.ReadReply(false).Status(), 404);
    EXPECT_EQ(client.ReadReply().Status(), 401);
}

TEST_F(Relay, EndsTheConnectionWhenTheServerDoes)
{
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken, "Connection: close"}));
    EXPECT_EQ(client.ReadReply().body, kBody);
    EXPECT_EQ(client.ReadAll(), "");
    EXPECT_TRUE(client.WasClosed());
}

TEST_F(Relay, ClosesBeforeTheHeaders)
{
    EXPECT_EQ(Answer("close-before-headers"), "");
    EXPECT_FALSE(m_reset);
}

TEST_F(Relay, ClosesWithinTheHeaders)
{
    const std::string whole = WholeAnswer();
    const std::string head = Split(whole).head;
    EXPECT_EQ(Answer("close-in-headers"), whole.substr(0, head.size() / 2));
}

TEST_F(Relay, ClosesBehindTheHeaders)
{
    EXPECT_EQ(Answer("close-after-headers"), Split(WholeAnswer()).head);
}

TEST_F(Relay, TruncatesTheBody)
{
    const RawReply half = Split(Answer("truncate"));
    EXPECT_EQ(half.body, kBody.substr(0, kBody.size() / 2));
    EXPECT_EQ(half.Header("Content-Length"), std::to_string(kBody.size()));
    EXPECT_EQ(Split(Answer("truncate=3")).body, kBody.substr(0, 3));
    EXPECT_EQ(Split(Answer("truncate=0")).body, "");
}

TEST_F(Relay, ResetsTheConnection)
{
    const RawReply reply = Split(Answer("reset=5"));
    EXPECT_TRUE(m_reset);
    EXPECT_EQ(kBody.substr(0, reply.body.size()), reply.body);
}

TEST_F(Relay, PromisesMoreThanItSends)
{
    const RawReply reply = Split(Answer("length-too-long=7"));
    EXPECT_EQ(reply.Header("Content-Length"), std::to_string(kBody.size() + 7));
    EXPECT_EQ(reply.body, kBody);
}

TEST_F(Relay, SendsMoreThanItPromises)
{
    const RawReply reply = Split(Answer("length-too-short=7"));
    EXPECT_EQ(reply.Header("Content-Length"), std::to_string(kBody.size() - 7));
    EXPECT_EQ(reply.body, kBody);
}

TEST_F(Relay, LeavesTheLengthOut)
{
    const RawReply reply = Split(Answer("no-length"));
    EXPECT_EQ(reply.Header("Content-Length"), "");
    EXPECT_EQ(reply.Header("Connection"), "close");
    EXPECT_EQ(reply.body, kBody);
}

TEST_F(Relay, GivesTwoLengths)
{
    const RawReply reply = Split(Answer("double-length"));
    const std::size_t first = reply.head.find("Content-Length: " + std::to_string(kBody.size()) + "\r\n");
    const std::size_t second = reply.head.find("Content-Length: " + std::to_string(kBody.size() + 7) + "\r\n");
    EXPECT_NE(first, std::string::npos);
    EXPECT_NE(second, std::string::npos);
}

TEST_F(Relay, AnswersWithoutAStatusLine)
{
    EXPECT_EQ(Answer("no-status-line"), "This is not HTTP.\r\n\r\n");
}

TEST_F(Relay, AnswersWithAStatusThatIsNoNumber)
{
    EXPECT_EQ(Answer("bad-status").substr(0, 26), "HTTP/1.1 two hundred OK\r\nC");
}

TEST_F(Relay, BreaksAChunk)
{
    const RawReply reply = Split(Answer("broken-chunk"));
    EXPECT_EQ(reply.Header("Transfer-Encoding"), "chunked");
    EXPECT_EQ(reply.Header("Content-Length"), "");
    EXPECT_EQ(reply.body, "no-length\r\n" + kBody);
}

TEST_F(Relay, StallsInTheMiddleOfTheBodyAndKeepsTheConnection)
{
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken, "X-Nuq-Fault: stall=4"}));
    EXPECT_EQ(Split(client.ReadAll(300)).body, kBody.substr(0, 4));
    EXPECT_FALSE(client.WasClosed());
}

TEST_F(Relay, NeverAnswersAndKeepsTheConnection)
{
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken, "X-Nuq-Fault: stall-before-headers"}));
    EXPECT_EQ(client.ReadAll(300), "");
    EXPECT_FALSE(client.WasClosed());
}

TEST_F(Relay, DelaysTheReplyAndKeepsTheConnection)
{
    RawClient client(m_relay.Port());
    const auto begin = Clock::now();
    client.Send(Request(kPath, {kToken, "X-Nuq-Fault: delay=150"}));
    EXPECT_EQ(client.ReadReply().body, kBody);
    EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(149));
    client.Send(Request(kPath, {kToken}));
    EXPECT_EQ(client.ReadReply().body, kBody);
}

TEST_F(Relay, DripsTheReply)
{
    const auto bytes = static_cast<double>(WholeAnswer().size());
    const auto begin = Clock::now();
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken, "X-Request-Id: id", "X-Nuq-Fault: drip=1000"}));
    const RawReply reply = client.ReadReply();
    const std::chrono::duration<double> took = Clock::now() - begin;
    EXPECT_EQ(reply.head + reply.body, WholeAnswer());
    EXPECT_GE(took.count(), bytes / 1000 * 0.8);
    EXPECT_LT(took.count(), bytes / 1000 + 2.0);
}

TEST_F(Relay, DelaysAndDamagesOneReply)
{
    const auto begin = Clock::now();
    EXPECT_EQ(Split(Answer("delay=100,truncate=2")).body, kBody.substr(0, 2));
    EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(99));
}

TEST_F(Relay, FollowsRulesByPathAndNumber)
{
    m_relay.AddRule(ParseFaultRule("truncate=1@/api/v1/projects#2"));
    EXPECT_EQ(Fetch(m_relay.Port(), kPath, {kToken}).body, kBody);
    EXPECT_EQ(Fetch(m_relay.Port(), "/api/v3/categories", {kToken}).Status(), 200);
    EXPECT_EQ(Fetch(m_relay.Port(), kPath, {kToken}).body, kBody.substr(0, 1));
    EXPECT_EQ(Fetch(m_relay.Port(), kPath, {kToken}).body, kBody);
}

TEST_F(Relay, ExplainsAFaultThatItDoesNotKnow)
{
    const RawReply reply = Split(Answer("bogus"));
    EXPECT_EQ(reply.Status(), 400);
    EXPECT_EQ(reply.body, "There is no fault \"bogus\"; nuq-cloud --help lists those there are.");
}

TEST_F(Relay, RefusesAHeadWithoutEnd)
{
    RawClient client(m_relay.Port());
    client.Send("GET / HTTP/1.1\r\nX: " + std::string(400000, 'a'));
    EXPECT_EQ(client.ReadReply().Status(), 431);
}

TEST_F(Relay, SurvivesClientsThatLeave)
{
    for (int i = 0; i < 40; ++i) {
        RawClient client(m_relay.Port());
        client.Send(Request(kPath, {kToken, i % 2 == 0 ? "X-Nuq-Fault: stall" : "X-Nuq-Fault: delay=50"}));
        client.Abort();
    }
    EXPECT_EQ(Fetch(m_relay.Port(), kPath, {kToken}).body, kBody);
}

TEST_F(Relay, EndsIdleConnectionsWhenItIsDrained)
{
    RawClient client(m_relay.Port());
    client.Send(Request(kPath, {kToken}));
    client.ReadReply();
    m_relay.Drain(5000);
    EXPECT_EQ(client.ReadAll(), "");
    EXPECT_TRUE(client.WasClosed());
}

TEST(RelayInFront, OfNobodyAnswers502)
{
    quint16 port = 0;
    {
        const TestServer server;
        port = static_cast<quint16>(server.Port());
    }
    const FaultRelayThread relay(port);
    EXPECT_EQ(Fetch(relay.Port(), "/").Status(), 502);
}

TEST(RelayInFront, OfAnyServerPassesChunksAndRequestBodiesOn)
{
    testsupport::LoopbackServer server;
    using testsupport::ScriptedResponse;
    server.On("/x", ScriptedResponse::Json("[1,2,3]").WithFraming(ScriptedResponse::Framing::Chunked));
    const FaultRelayThread relay(server.Port());
    std::string answers[2];
    const quint16 ports[] = {server.Port(), relay.Port()};
    for (int i = 0; i < 2; ++i) {
        RawClient client(ports[i]);
        client.Send(Request("/x", {"Content-Length: 4"}, "POST") + "body" + Request("/x"));
        answers[i] = client.ReadAll(300);
    }
    EXPECT_NE(answers[0].find("chunked"), std::string::npos);
    EXPECT_EQ(answers[1], answers[0]);
    ASSERT_EQ(server.Requests().size(), 4U) << "the end of the chunks was not seen";
    EXPECT_EQ(server.Requests().at(2).body, QByteArray("body"));
    EXPECT_EQ(server.Requests().at(3).method, QByteArray("GET"));
}

TEST(RelayInFront, OfAHugeBodyDoesNotKeepItInMemory)
{
    const TestServer server(WithFaults());
    const FaultRelayThread relay(static_cast<quint16>(server.Port()));
    RawClient client(relay.Port());
    client.Send(Request(kPath, {kToken, "X-Nuq-Fault: huge-body=50000000"}));
    const RawReply reply = client.ReadReply();
    EXPECT_EQ(reply.body.size(), 50000000U);
    EXPECT_EQ(reply.body.substr(reply.body.size() - 14), "\",\"data\":null}");
}

TEST(RelayInTheTestsLoop, DamagesRepliesForAClientOfTheSameThread)
{
    const TestServer server;
    nuqcloud::FaultRelay relay(static_cast<quint16>(server.Port()));
    relay.AddRule(ParseFaultRule("truncate=1#1"));
    QNetworkAccessManager manager;
    QNetworkRequest request(
        QUrl(QStringLiteral("http://127.0.0.1:%1/api/v1/projects").arg(QString::number(relay.Port()))));
    request.setRawHeader("Authorization", "demo-token");
    for (const auto expected : {QNetworkReply::RemoteHostClosedError, QNetworkReply::NoError}) {
        const std::unique_ptr<QNetworkReply> reply(manager.get(request));
        ASSERT_TRUE(testsupport::WaitFor([&reply] { return reply->isFinished(); }));
        EXPECT_EQ(reply->error(), expected);
    }
}

TEST(RelayInTheTestsLoop, SaysWhenItsAddressIsTaken)
{
    const nuqcloud::FaultRelay first(1);
    nuqcloud::FaultRelaySettings settings;
    settings.port = first.Port();
    const nuqcloud::FaultRelay second(settings, std::make_shared<nuqcloud::FaultPlan>());
    EXPECT_EQ(second.Port(), 0);
    EXPECT_EQ(second.Error(), QStringLiteral("The bound address is already in use"));
    EXPECT_THROW(FaultRelayThread(settings, std::make_shared<nuqcloud::FaultPlan>()), std::runtime_error);
}

TEST(RelayThatDoesNotObey, TakesTheHeaderOffUnread)
{
    testsupport::LoopbackServer server;
    server.On("/x", testsupport::ScriptedResponse::Json("{}"));
    nuqcloud::FaultRelaySettings settings;
    settings.targetPort = server.Port();
    settings.obeysHeader = false;
    const FaultRelayThread relay(settings, std::make_shared<nuqcloud::FaultPlan>());
    EXPECT_EQ(Fetch(relay.Port(), "/x", {"X-Nuq-Fault: close-before-headers"}).body, "{}");
    EXPECT_EQ(server.Requests().at(0).HeaderCount("X-Nuq-Fault"), 0);
}

TEST(RelayThatObeys, TellsTheServerWhatItDecided)
{
    testsupport::LoopbackServer server;
    server.On("/x", testsupport::ScriptedResponse::Json("{}"));
    FaultRelayThread relay(server.Port());
    relay.AddRule(ParseFaultRule("status=503"));
    Fetch(relay.Port(), "/x", {"x-nuq-fault: delay=1"});
    EXPECT_EQ(server.Requests().at(0).Header("X-Nuq-Fault"), QByteArray("delay=1,status=503"));
    EXPECT_EQ(server.Requests().at(0).HeaderCount("X-Nuq-Fault"), 1);
}

} // namespace
} // namespace cloudtest
