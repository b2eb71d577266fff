#include "support/LoopbackServer.h"

#include "support/ReplyFetcher.h"
#include "support/WaitFor.h"

#include <QElapsedTimer>
#include <QTcpSocket>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testsupport::FinishedReply;
using testsupport::LoopbackServer;
using testsupport::ReplyFetcher;
using testsupport::RunToEnd;
using testsupport::ScriptedResponse;

namespace {

class ALoopbackServer : public ::testing::Test
{
protected:
    FinishedReply Get(const QString& target) { return m_fetcher.Get(m_server.Url(target)); }

    QByteArray BodyOf(const QString& target) { return Get(target)->readAll(); }

    LoopbackServer m_server;
    ReplyFetcher m_fetcher;
};

int StatusOf(const FinishedReply& reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Sends a request by hand and blocks until the connection closes.
QByteArray RawAnswer(const LoopbackServer& server, const QByteArray& request)
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), server.Port());
    socket.write(request);
    QByteArray answer;
    while (socket.waitForReadyRead(5000)) {
        answer += socket.readAll();
    }
    return answer + socket.readAll();
}

void LeaveARequestWithoutAnswer()
{
    const LoopbackServer server;
    ReplyFetcher fetcher;
    EXPECT_EQ(StatusOf(fetcher.Get(server.Url(QStringLiteral("/unknown")))), 501);
}

} // namespace

TEST_F(ALoopbackServer, AnswersAPath)
{
    m_server.On("/a", ScriptedResponse::Json("{\"a\":1}"));
    const FinishedReply reply = Get(QStringLiteral("/a?x=1"));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_EQ(StatusOf(reply), 200);
    EXPECT_EQ(reply->header(QNetworkRequest::ContentTypeHeader).toString(), QStringLiteral("application/json"));
    EXPECT_EQ(reply->readAll(), "{\"a\":1}");
}

TEST_F(ALoopbackServer, PrefersTheExactTarget)
{
    m_server.On("/a", ScriptedResponse::Status(200, "path"));
    m_server.On("/a?x=1", ScriptedResponse::Status(200, "target"));
    EXPECT_EQ(BodyOf(QStringLiteral("/a?x=1")), "target");
    EXPECT_EQ(BodyOf(QStringLiteral("/a?x=2")), "path");
}

TEST_F(ALoopbackServer, GivesAPathsAnswersInOrderAndRepeatsTheLast)
{
    m_server.On("/a", ScriptedResponse::Status(200, "first"));
    m_server.On("/a", ScriptedResponse::Status(200, "last"));
    EXPECT_EQ(BodyOf(QStringLiteral("/a")), "first");
    EXPECT_EQ(BodyOf(QStringLiteral("/a")), "last");
    EXPECT_EQ(BodyOf(QStringLiteral("/a")), "last");
}

TEST_F(ALoopbackServer, GivesEnqueuedAnswersFirst)
{
    m_server.On("/a", ScriptedResponse::Status(200, "route"));
    m_server.Enqueue(ScriptedResponse::Status(200, "one"));
    m_server.Enqueue(ScriptedResponse::Status(200, "two"));
    EXPECT_EQ(BodyOf(QStringLiteral("/a")), "one");
    EXPECT_EQ(BodyOf(QStringLiteral("/anything")), "two");
    EXPECT_EQ(BodyOf(QStringLiteral("/a")), "route");
}

TEST_F(ALoopbackServer, KeepsWhatItReceived)
{
    m_server.On("/a", ScriptedResponse::Status(200));
    QNetworkRequest request(m_server.Url(QStringLiteral("/a?name=%E9%A3%8E")));
    request.setRawHeader("Authorization", "bearer abc");
    m_fetcher.Get(request);
    ASSERT_EQ(m_server.Requests().size(), 1U);
    EXPECT_EQ(m_server.Requests()[0].method, "GET");
    EXPECT_EQ(m_server.Requests()[0].target, "/a?name=%E9%A3%8E");
    EXPECT_EQ(m_server.Requests()[0].Header("authorization"), "bearer abc");
}

TEST_F(ALoopbackServer, KeepsItsConnections)
{
    m_server.On("/a", ScriptedResponse::Status(200, "a"));
    Get(QStringLiteral("/a"));
    Get(QStringLiteral("/a"));
    EXPECT_EQ(m_server.ConnectionCount(), 1);
    EXPECT_EQ(m_server.Requests().at(1).connection, 1);
}

TEST_F(ALoopbackServer, AnswersSeveralConnectionsAtOnce)
{
    m_server.On("/slow", ScriptedResponse::Status(200, "slow").Delayed(200ms));
    m_server.On("/fast", ScriptedResponse::Status(200, "fast"));
    QNetworkReply* const slow = m_fetcher.Manager().get(QNetworkRequest(m_server.Url(QStringLiteral("/slow"))));
    EXPECT_EQ(BodyOf(QStringLiteral("/fast")), "fast");
    EXPECT_FALSE(slow->isFinished());
    EXPECT_EQ(RunToEnd(slow)->readAll(), "slow");
}

TEST_F(ALoopbackServer, AnswersABlockingClient)
{
    m_server.On("/a", ScriptedResponse::Status(200, "hello").WithFraming(ScriptedResponse::Framing::UntilClose));
    EXPECT_EQ(RawAnswer(m_server, "GET /a HTTP/1.1\r\n\r\n"), "HTTP/1.1 200 OK\r\n\r\nhello");
}

TEST_F(ALoopbackServer, AnswersPipelinedRequestsInOrder)
{
    m_server.On("/a", ScriptedResponse::Status(204).Delayed(20ms));
    m_server.On("/b", ScriptedResponse::Status(200, "b").WithFraming(ScriptedResponse::Framing::UntilClose));
    EXPECT_EQ(RawAnswer(m_server, "GET /a HTTP/1.1\r\n\r\nGET /b HTTP/1.1\r\n\r\n"),
        "HTTP/1.1 204 No Content\r\n\r\nHTTP/1.1 200 OK\r\n\r\nb");
}

TEST_F(ALoopbackServer, LeavesTheBodyOutOfAnswersToHead)
{
    m_server.On("/a", ScriptedResponse::Status(200, "body").WithHeader("Connection", "close"));
    const FinishedReply reply = RunToEnd(m_fetcher.Manager().head(QNetworkRequest(m_server.Url(QStringLiteral("/a")))));
    EXPECT_EQ(reply->header(QNetworkRequest::ContentLengthHeader).toInt(), 4);
    EXPECT_EQ(reply->readAll(), "");
}

TEST_F(ALoopbackServer, ReadsRequestBodies)
{
    m_server.On("/a", ScriptedResponse::Status(200));
    QNetworkRequest request(m_server.Url(QStringLiteral("/a")));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/plain"));
    RunToEnd(m_fetcher.Manager().post(request, QByteArray(100000, 'x')));
    EXPECT_EQ(m_server.Requests().at(0).method, "POST");
    EXPECT_EQ(m_server.Requests().at(0).body, QByteArray(100000, 'x'));
}

TEST_F(ALoopbackServer, SendsStatusReasonAndHeadersAsScripted)
{
    m_server.On("/a", ScriptedResponse::Json("{}", 429).WithHeader("Retry-After", "7").WithReason("Slow Down"));
    const FinishedReply reply = Get(QStringLiteral("/a"));
    EXPECT_EQ(StatusOf(reply), 429);
    EXPECT_EQ(reply->rawHeader("Retry-After"), "7");
    EXPECT_EQ(reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString(), QStringLiteral("Slow Down"));
    EXPECT_EQ(reply->readAll(), "{}");
}

TEST_F(ALoopbackServer, ShowsRedirects)
{
    m_server.On("/a", ScriptedResponse::Redirect("/b"));
    const FinishedReply reply = Get(QStringLiteral("/a"));
    EXPECT_EQ(StatusOf(reply), 302);
    EXPECT_EQ(reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl(), QUrl(QStringLiteral("/b")));
    EXPECT_EQ(m_server.Requests().size(), 1U);
}

TEST_F(ALoopbackServer, CanBeTornDownWithARequestUnderWay)
{
    auto server = std::make_unique<LoopbackServer>();
    server->On("/a", ScriptedResponse::Status(200).Delayed(1h));
    QNetworkReply* const reply = m_fetcher.Manager().get(QNetworkRequest(server->Url(QStringLiteral("/a"))));
    ASSERT_TRUE(testsupport::WaitFor([&server] { return server->Requests().size() == 1; }));
    server.reset();
    EXPECT_NE(RunToEnd(reply)->error(), QNetworkReply::NoError);
}

TEST(ALoopbackServerWithoutAnswer, FailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(LeaveARequestWithoutAnswer(), "no answer for: GET /unknown");
}
