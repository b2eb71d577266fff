#include "support/LoopbackServer.h"
#include "support/ReplyFetcher.h"
#include "support/WaitFor.h"

#include <QElapsedTimer>
#include <QTcpSocket>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testsupport::FinishedReply;
using testsupport::LoopbackServer;
using testsupport::ReplyFetcher;
using testsupport::RunToEnd;
using testsupport::ScriptedResponse;
using CutPoint = ScriptedResponse::CutPoint;
using CutAction = ScriptedResponse::CutAction;

namespace {

const QByteArray Body("0123456789");

class ALoopbackFault : public ::testing::Test
{
protected:
    FinishedReply Get(const ScriptedResponse& response)
    {
        m_server.On("/", response);
        return m_fetcher.Get(m_server.Url());
    }

    QNetworkReply* Start(const ScriptedResponse& response)
    {
        m_server.On("/", response);
        return m_fetcher.Manager().get(QNetworkRequest(m_server.Url()));
    }

    LoopbackServer m_server;
    ReplyFetcher m_fetcher;
};

int StatusOf(const FinishedReply& reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

TEST_F(ALoopbackFault, ClosesBeforeTheHeaders)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).CutAt(CutPoint::BeforeHeaders));
    EXPECT_EQ(reply->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(StatusOf(reply), 0);
}

TEST_F(ALoopbackFault, ClosesWithinTheHeaders)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).CutAt(CutPoint::WithinHeaders));
    EXPECT_EQ(reply->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(reply->readAll(), "");
}

TEST_F(ALoopbackFault, ClosesAfterTheHeaders)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).CutAt(CutPoint::AfterHeaders));
    EXPECT_EQ(reply->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(StatusOf(reply), 200);
}

TEST_F(ALoopbackFault, ClosesWithinTheBody)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).CutAt(CutPoint::WithinBody));
    EXPECT_EQ(reply->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(reply->readAll(), "01234");
}

TEST_F(ALoopbackFault, NamesALengthThatIsTooLong)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).WithDeclaredLength(100));
    EXPECT_EQ(reply->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(reply->readAll(), Body);
}

TEST_F(ALoopbackFault, NamesALengthThatIsTooShort)
{
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).WithDeclaredLength(4));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_EQ(reply->readAll(), "0123");
}

TEST_F(ALoopbackFault, StallsBeforeTheHeaders)
{
    QNetworkReply* const reply =
        Start(ScriptedResponse::Status(200, Body).CutAt(CutPoint::BeforeHeaders, CutAction::Stall));
    ASSERT_TRUE(testsupport::WaitFor([this] { return m_server.Requests().size() == 1; }));
    EXPECT_FALSE(testsupport::WaitFor([reply] { return reply->isFinished(); }, 100ms));
    reply->abort();
    EXPECT_EQ(RunToEnd(reply)->error(), QNetworkReply::OperationCanceledError);
}

TEST_F(ALoopbackFault, StallsWithinTheBody)
{
    QNetworkReply* const reply =
        Start(ScriptedResponse::Status(200, Body).CutAt(CutPoint::WithinBody, CutAction::Stall));
    ASSERT_TRUE(testsupport::WaitFor([reply] { return reply->bytesAvailable() == 5; }));
    EXPECT_FALSE(testsupport::WaitFor([reply] { return reply->isFinished(); }, 100ms));
    reply->abort();
    EXPECT_EQ(RunToEnd(reply)->error(), QNetworkReply::OperationCanceledError);
}

TEST_F(ALoopbackFault, DripsSlowlyToTheEnd)
{
    QElapsedTimer clock;
    clock.start();
    const FinishedReply reply = Get(ScriptedResponse::Status(200, Body).Dripping(10, 5ms));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_EQ(reply->readAll(), Body);
    // 48 bytes in pieces of ten: four pauses.
    EXPECT_GE(clock.elapsed(), 20);
}

TEST_F(ALoopbackFault, DelaysItsFirstByte)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(Get(ScriptedResponse::Status(200, Body).Delayed(50ms))->readAll(), Body);
    EXPECT_GE(clock.elapsed(), 50);
}

TEST_F(ALoopbackFault, SendsChunks)
{
    const ScriptedResponse response =
        ScriptedResponse::Status(200, Body).WithFraming(ScriptedResponse::Framing::Chunked);
    EXPECT_EQ(response.Wire("GET"),
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n01234\r\n5\r\n56789\r\n0\r\n\r\n");
    const FinishedReply reply = Get(response);
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_EQ(reply->readAll(), Body);
}

TEST_F(ALoopbackFault, SendsAnEmptyChunkedBody)
{
    const auto response = ScriptedResponse::Status(200).WithFraming(ScriptedResponse::Framing::Chunked);
    EXPECT_EQ(response.Wire("GET"), "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n");
    EXPECT_EQ(Get(response)->readAll(), "");
}

TEST_F(ALoopbackFault, ClosesWithinTheChunks)
{
    // What Qt makes of this depends on where the cut is and how the bytes arrive, so a plain socket looks at it.
    m_server.On("/", ScriptedResponse::Status(200, Body)
                         .WithFraming(ScriptedResponse::Framing::Chunked)
                         .CutAt(CutPoint::WithinBody));
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), m_server.Port());
    socket.write("GET / HTTP/1.1\r\n\r\n");
    ASSERT_TRUE(testsupport::WaitFor(
        [&] { return socket.state() == QAbstractSocket::UnconnectedState && m_server.Requests().size() == 1; }));
    EXPECT_EQ(socket.readAll(), "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n01234\r\n5\r");
}

TEST_F(ALoopbackFault, NamesNoLength)
{
    const ScriptedResponse response =
        ScriptedResponse::Status(200, Body).WithFraming(ScriptedResponse::Framing::UntilClose);
    EXPECT_EQ(response.Wire("GET"), "HTTP/1.1 200 OK\r\n\r\n0123456789");
    const FinishedReply reply = Get(response);
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
    EXPECT_EQ(reply->readAll(), Body);
}

TEST_F(ALoopbackFault, SendsRawBytesInsteadOfAResponse)
{
    const FinishedReply reply = Get(ScriptedResponse::Raw("no status line at all\r\n\r\n"));
    EXPECT_NE(reply->error(), QNetworkReply::NoError);
}

TEST_F(ALoopbackFault, SendsNoBodyWhereTheStatusForbidsOne)
{
    EXPECT_EQ(ScriptedResponse::Status(204, Body).Wire("GET"), "HTTP/1.1 204 No Content\r\n\r\n");
    EXPECT_EQ(ScriptedResponse::Status(304, Body).Wire("GET"), "HTTP/1.1 304 Not Modified\r\n\r\n");
    const FinishedReply reply = Get(ScriptedResponse::Status(204));
    EXPECT_EQ(StatusOf(reply), 204);
    EXPECT_EQ(reply->error(), QNetworkReply::NoError);
}
