#include "TarnNuqService/ResponseHandlers/HandlerBranch.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using testing::ElementsAre;
using testing::IsEmpty;
using CutPoint = ScriptedResponse::CutPoint;
using CutAction = ScriptedResponse::CutAction;
using Framing = ScriptedResponse::Framing;

class ReplyErrorTest : public HandlerFixture, public testing::WithParamInterface<HandlerBranch>
{
protected:
    /// Expects that the branch words this failed reply by its status and message, and logs it once.
    void ExpectRequestError(QNetworkReply* reply, int status, const QString& message)
    {
        const QString text = GetParam().requestError(status, message);
        EXPECT_EQ(GetParam().handle(reply), text.toStdWString());
        EXPECT_THAT(host.logger.Records(), ElementsAre(GetParam().errorRecord(reply->url().toString(), text)));
    }

    /// Expects that half a body is no success, whether Qt notices the close or takes it for the body's end.
    void ExpectCutBodyRefused(QNetworkReply* reply)
    {
        if (reply->error() == QNetworkReply::NoError) {
            EXPECT_EQ(GetParam().handle(reply), L"fail to parse response body:error type - 10");
        } else {
            ExpectRequestError(reply, 200, QStringLiteral("Connection closed"));
        }
    }

    static QString TransferMessage(const QNetworkReply& reply, const QString& reason)
    {
        return QStringLiteral("Error transferring ") + reply.url().toString() + QStringLiteral(" - server replied: ") +
               reason;
    }
};

INSTANTIATE_TEST_SUITE_P(, ReplyErrorTest, testing::ValuesIn(HandlerBranches()), RowName());

TEST_P(ReplyErrorTest, NoReplyIsAnErrorThatIsNotLogged)
{
    EXPECT_EQ(GetParam().handle(nullptr), L"Reply is null!");
    EXPECT_THAT(host.logger.Records(), IsEmpty());
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_P(ReplyErrorTest, NotFoundNamesStatusAndQtsMessage)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}", 404));
    ExpectRequestError(reply.get(), 404, TransferMessage(*reply, QStringLiteral("Not Found")));
}

TEST_P(ReplyErrorTest, EveryErrorStatusIsNamed)
{
    for (const int status : {400, 401, 403, 405, 409, 410, 418, 429, 500, 501, 502, 503, 504, 599}) {
        SCOPED_TRACE(status);
        host.logger.Clear();
        const FinishedReply reply = Fetch(ScriptedResponse::Json("{}", status).WithReason("No"));
        ExpectRequestError(reply.get(), status, reply->errorString());
    }
}

TEST_P(ReplyErrorTest, BodyOfAFailedReplyIsLeftUnread)
{
    const QByteArray body = R"({"code":"success","message":"","data":[]})";
    const FinishedReply reply = Fetch(ScriptedResponse::Json(body, 500));
    GetParam().handle(reply.get());
    EXPECT_EQ(reply->bytesAvailable(), body.size());
    EXPECT_EQ(reply->readAll(), body);
}

TEST_P(ReplyErrorTest, PlaceMarkersInTheReasonArriveAsTheyAre)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}", 500).WithReason("%1 %2 %L1"));
    ExpectRequestError(reply.get(), 500, TransferMessage(*reply, QStringLiteral("%1 %2 %L1")));
}

TEST_P(ReplyErrorTest, PlaceMarkersInTheAddressArriveAsTheyAre)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}", 404), QStringLiteral("/%12?keyword=%251"));
    ASSERT_TRUE(reply->url().toString().endsWith(QStringLiteral("/%12?keyword=%251")));
    ExpectRequestError(reply.get(), 404, TransferMessage(*reply, QStringLiteral("Not Found")));
}

TEST_P(ReplyErrorTest, AddressIsLoggedReadable)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}", 404), QStringLiteral("/风管?keyword=a%20b"));
    ASSERT_TRUE(reply->url().toString().endsWith(QStringLiteral("/风管?keyword=a b")));
    ExpectRequestError(reply.get(), 404, reply->errorString());
}

TEST_P(ReplyErrorTest, RefusedConnectionHasStatusZero)
{
    QUrl nobody;
    {
        const LoopbackServer gone;
        nobody = gone.Url();
    }
    const FinishedReply reply = fetcher.Get(nobody);
    ExpectRequestError(reply.get(), 0, QStringLiteral("Connection refused"));
}

TEST_P(ReplyErrorTest, ConnectionClosedBeforeTheHeadersHasStatusZero)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}").CutAt(CutPoint::BeforeHeaders));
    ExpectRequestError(reply.get(), 0, QStringLiteral("Connection closed"));
}

TEST_P(ReplyErrorTest, ConnectionClosedWithinTheHeadersIsARequestError)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Json("{}").CutAt(CutPoint::WithinHeaders));
    ExpectRequestError(reply.get(), 0, QStringLiteral("Connection closed"));
}

TEST_P(ReplyErrorTest, AnswerThatIsNoHttpHasStatusZero)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Raw("220 welcome\r\n\r\n"));
    ASSERT_NE(reply->error(), QNetworkReply::NoError);
    ExpectRequestError(reply.get(), 0, reply->errorString());
}

TEST_P(ReplyErrorTest, AbortedReplyHasStatusZero)
{
    server.On("/slow", ScriptedResponse::Json("{}").CutAt(CutPoint::BeforeHeaders, CutAction::Stall));
    QNetworkReply* const running = fetcher.Manager().get(QNetworkRequest(server.Url(QStringLiteral("/slow"))));
    running->abort();
    const FinishedReply reply = RunToEnd(running);
    ExpectRequestError(reply.get(), 0, QStringLiteral("Operation canceled"));
}

TEST_P(ReplyErrorTest, BodyCutShortIsAnError)
{
    ExpectCutBodyRefused(Fetch(ScriptedResponse::Json(SuccessBody("[]")).CutAt(CutPoint::WithinBody)).get());
}

TEST_P(ReplyErrorTest, CutBodyThatClaimsAGigabyteIsAnError)
{
    ExpectCutBodyRefused(
        Fetch(ScriptedResponse::Json(SuccessBody("[]")).WithDeclaredLength(qint64(1) << 30).CutAt(CutPoint::WithinBody))
            .get());
}

TEST_P(ReplyErrorTest, ChunksCutShortAreARequestError)
{
    server.On(
        "/chunks", ScriptedResponse::Json(SuccessBody("[]")).WithFraming(Framing::Chunked).CutAt(CutPoint::WithinBody));
    QNetworkRequest request(server.Url(QStringLiteral("/chunks")));
    // Qt notices a close within a chunk's size line only when the transfer times out.
    request.setTransferTimeout(300);
    const FinishedReply reply = fetcher.Get(request);
    ASSERT_NE(reply->error(), QNetworkReply::NoError);
    ExpectRequestError(reply.get(), 200, reply->errorString());
}

TEST_P(ReplyErrorTest, BodyThatStallsEndsWithTheTransferTimeout)
{
    server.On("/stalls", ScriptedResponse::Json(SuccessBody("[]")).CutAt(CutPoint::WithinBody, CutAction::Stall));
    QNetworkRequest request(server.Url(QStringLiteral("/stalls")));
    request.setTransferTimeout(100);
    const FinishedReply reply = fetcher.Get(request);
    ExpectRequestError(reply.get(), 200, QStringLiteral("Operation canceled"));
}

} // namespace
