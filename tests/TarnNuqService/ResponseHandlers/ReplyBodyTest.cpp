#include "TarnNuqService/ResponseHandlers/HandlerBranch.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "support/NamedCase.h"

#include <QCoreApplication>
#include <QJsonParseError>
#include <QPointer>
#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using testing::ElementsAre;
using Framing = ScriptedResponse::Framing;

QByteArray Nested(int depth)
{
    return SuccessBody("{\"deep\":" + QByteArray(depth, '[') + QByteArray(depth, ']') + '}');
}

class ReplyBodyTest : public HandlerFixture, public testing::WithParamInterface<HandlerBranch>
{
protected:
    void ExpectSuccess(QNetworkReply* reply, const QString& loggedBody)
    {
        EXPECT_EQ(GetParam().handle(reply), L"");
        EXPECT_THAT(host.logger.Records(), ElementsAre(GetParam().successRecord(reply->url().toString(), loggedBody)));
    }

    /// Expects that the body is logged as it came, then the parser's verdict on it.
    void ExpectParseError(QNetworkReply* reply, const QString& loggedBody, QJsonParseError::ParseError verdict)
    {
        const QString text = QStringLiteral("fail to parse response body:error type - ") + QString::number(verdict);
        EXPECT_EQ(GetParam().handle(reply), text.toStdWString());
        EXPECT_THAT(host.logger.Records(), ElementsAre(GetParam().successRecord(reply->url().toString(), loggedBody),
                                               LogRecord{LogRecord::Operation::Error, {text}}));
        host.logger.Clear();
    }

    void ExpectParseError(const QByteArray& body, QJsonParseError::ParseError verdict)
    {
        SCOPED_TRACE(body.left(60).toStdString());
        ExpectParseError(FetchBody(body).get(), QString::fromUtf8(body), verdict);
    }
};

INSTANTIATE_TEST_SUITE_P(, ReplyBodyTest, testing::ValuesIn(HandlerBranches()), RowName());

TEST_P(ReplyBodyTest, BodyThatArrivedIsLoggedWhole)
{
    const QByteArray body = SuccessBody(R"({"name":"风管 %1 %2 %L1"})");
    ExpectSuccess(FetchBody(body).get(), QString::fromUtf8(body));
}

TEST_P(ReplyBodyTest, PlaceMarkersInTheAddressArriveAsTheyAre)
{
    const QByteArray body = SuccessBody(R"({"name":"%1"})");
    const FinishedReply reply = Fetch(ScriptedResponse::Json(body), QStringLiteral("/%12?keyword=%251"));
    ASSERT_TRUE(reply->url().toString().endsWith(QStringLiteral("/%12?keyword=%251")));
    ExpectSuccess(reply.get(), QString::fromUtf8(body));
}

TEST_P(ReplyBodyTest, ReplyIsNeitherClosedNorDeleted)
{
    const FinishedReply reply = FetchBody(SuccessBody("[]"));
    const QPointer<QNetworkReply> alive(reply.get());
    GetParam().handle(reply.get());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    ASSERT_FALSE(alive.isNull());
    EXPECT_TRUE(reply->isOpen());
}

TEST_P(ReplyBodyTest, BodyIsReadOnce)
{
    const FinishedReply reply = FetchBody(SuccessBody("[]"));
    GetParam().handle(reply.get());
    host.logger.Clear();
    ExpectParseError(reply.get(), QString(), QJsonParseError::IllegalValue);
}

TEST_P(ReplyBodyTest, EmptyBodyIsAParseError)
{
    ExpectParseError("", QJsonParseError::IllegalValue);
}

TEST_P(ReplyBodyTest, NoContentIsAParseError)
{
    ExpectParseError(Fetch(ScriptedResponse::Status(204)).get(), QString(), QJsonParseError::IllegalValue);
}

TEST_P(ReplyBodyTest, RedirectIsNotFollowedAndItsPageIsAParseError)
{
    const FinishedReply reply = Fetch(ScriptedResponse::Redirect("/elsewhere"));
    ExpectParseError(reply.get(), QStringLiteral("<html>moved</html>"), QJsonParseError::IllegalValue);
    for (const ReceivedRequest& request : server.Requests()) {
        EXPECT_NE(request.Path(), "/elsewhere");
    }
}

TEST_P(ReplyBodyTest, BrokenJsonNamesTheParsersCode)
{
    ExpectParseError("   ", QJsonParseError::IllegalValue);
    ExpectParseError("<html></html>", QJsonParseError::IllegalValue);
    ExpectParseError("success", QJsonParseError::IllegalValue);
    ExpectParseError(R"("success")", QJsonParseError::IllegalValue);
    ExpectParseError("12", QJsonParseError::IllegalValue);
    ExpectParseError("null", QJsonParseError::IllegalValue);
    ExpectParseError(R"({"code":["success"])", QJsonParseError::UnterminatedObject);
    ExpectParseError(R"({"code" "success"})", QJsonParseError::MissingNameSeparator);
    ExpectParseError(R"({"code":"success","data":[[])", QJsonParseError::UnterminatedArray);
    ExpectParseError(R"({"code":"success","data":[1 2]})", QJsonParseError::MissingValueSeparator);
    ExpectParseError(R"({"code":nul})", QJsonParseError::IllegalValue);
    ExpectParseError(R"({"code":1)", QJsonParseError::TerminationByNumber);
    ExpectParseError(R"({"code":-})", QJsonParseError::IllegalNumber);
    ExpectParseError(R"({"code":"\ud8"})", QJsonParseError::IllegalEscapeSequence);
    ExpectParseError(R"({"code":"success)", QJsonParseError::UnterminatedString);
    ExpectParseError(R"({"code":"success",})", QJsonParseError::MissingObject);
    ExpectParseError(R"({'code':"success"})", QJsonParseError::UnterminatedObject);
    ExpectParseError(R"({"code":NaN})", QJsonParseError::IllegalNumber);
    ExpectParseError(R"({"code":"success"}})", QJsonParseError::GarbageAtEnd);
    ExpectParseError(SuccessBody("[]") + SuccessBody("[]"), QJsonParseError::GarbageAtEnd);
}

TEST_P(ReplyBodyTest, NumberBeyondDoubleIsAParseError)
{
    ExpectParseError(R"({"code":"success","data":1e400})", QJsonParseError::IllegalNumber);
}

TEST_P(ReplyBodyTest, DeepNestingIsAParseError)
{
    ExpectParseError(Nested(10000), QJsonParseError::DeepNesting);
}

TEST_P(ReplyBodyTest, NestingWithinTheParsersLimitIsFine)
{
    const QByteArray body = Nested(1000);
    ExpectSuccess(FetchBody(body).get(), QString::fromUtf8(body));
}

TEST_P(ReplyBodyTest, NulBytesAreLoggedAndRefused)
{
    const QByteArray body = QByteArrayLiteral("{\"code\":\"success\"}\0tail");
    ExpectParseError(
        FetchBody(body).get(), QString::fromLatin1(body.constData(), body.size()), QJsonParseError::GarbageAtEnd);
}

TEST_P(ReplyBodyTest, InvalidUtf8IsLoggedReplacedAndRefused)
{
    ExpectParseError(FetchBody("{\"code\":\"\xFF\"}").get(), QStringLiteral("{\"code\":\"\uFFFD\"}"),
        QJsonParseError::IllegalUTF8String);
}

TEST_P(ReplyBodyTest, ByteOrderMarkIsSkipped)
{
    const QByteArray body = SuccessBody("[]");
    ExpectSuccess(FetchBody("\xEF\xBB\xBF" + body).get(), QString::fromUtf8(body));
}

TEST_P(ReplyBodyTest, Utf16IsRefused)
{
    const QByteArray body = QByteArrayLiteral("\xFF\xFE{\0}\0");
    ExpectParseError(
        FetchBody(body).get(), QString::fromUtf8(body.constData(), body.size()), QJsonParseError::IllegalValue);
}

TEST_P(ReplyBodyTest, BodyLongerThanItsDeclaredLengthIsCutThere)
{
    const QByteArray body = SuccessBody("[]");
    const FinishedReply reply = Fetch(ScriptedResponse::Json(body).WithDeclaredLength(body.size() - 1));
    ExpectParseError(reply.get(), QString::fromUtf8(body.chopped(1)), QJsonParseError::UnterminatedObject);
}

TEST_P(ReplyBodyTest, BodyWithoutLengthThatWasCutIsAParseError)
{
    const QByteArray body = SuccessBody("[]");
    const FinishedReply reply = Fetch(ScriptedResponse::Json(body.chopped(1)).WithFraming(Framing::UntilClose));
    ExpectParseError(reply.get(), QString::fromUtf8(body.chopped(1)), QJsonParseError::UnterminatedObject);
}

TEST_P(ReplyBodyTest, EveryFramingOfAWholeBodyIsRead)
{
    const QByteArray body = SuccessBody("[]");
    for (const Framing framing : {Framing::ContentLength, Framing::Chunked, Framing::UntilClose}) {
        ExpectSuccess(Fetch(ScriptedResponse::Json(body).WithFraming(framing)).get(), QString::fromUtf8(body));
        host.logger.Clear();
    }
}

TEST_P(ReplyBodyTest, BodyThatDripsInIsReadWhole)
{
    const QByteArray body = SuccessBody("[]");
    const FinishedReply reply = Fetch(ScriptedResponse::Json(body).Dripping(7, std::chrono::milliseconds(1)));
    ExpectSuccess(reply.get(), QString::fromUtf8(body));
}

TEST_P(ReplyBodyTest, ContentTypeDoesNotMatter)
{
    const QByteArray body = SuccessBody("[]");
    ExpectSuccess(Fetch(ScriptedResponse::Content(body, "image/png")).get(), QString::fromUtf8(body));
}

} // namespace
