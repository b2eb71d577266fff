#include "TarnNuqService/ResponseHandlers/HandlerBranch.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>
#include <tuple>

namespace {

using namespace testsupport;
using testing::ElementsAre;

/// One reply body and what the envelope check says about it.
struct EnvelopeRow
{
    const char* name;
    QByteArray body;
    /// The code and message that the error text names; a null code stands for success.
    QString code;
    QString message;
};

void PrintTo(const EnvelopeRow& row, std::ostream* stream)
{
    *stream << row.body.constData();
}

EnvelopeRow Accepted(const char* name, const QByteArray& body)
{
    return {name, body, QString(), QString()};
}

EnvelopeRow Refused(const char* name, const QByteArray& body, const QString& code, const QString& message)
{
    return {name, body, code, message};
}

/// Empty, but not null.
QString Empty()
{
    return QStringLiteral("");
}

const std::vector<EnvelopeRow>& Envelopes()
{
    static const std::vector<EnvelopeRow> rows{
        Accepted("Success", R"({"code":"success","message":"","data":null})"),
        Accepted("SuccessWithMessage", R"({"code":"success","message":"all is well"})"),
        Accepted("SuccessAlone", R"({"code":"success"})"),
        Accepted("UpperCaseWithBlanks", R"({"code":"  SUCCESS  "})"),
        Accepted("MixedCase", R"({"code":"SucCess"})"),
        Accepted("AnyWhiteSpaceAround", R"({"code":"\t\r\n\u00a0\u3000success\u2003\n"})"),
        Accepted("EscapedLetters", R"({"code":"\u0073uccess"})"),
        Accepted("LastOfTwoCodesCounts", R"({"code":"fail","code":"success"})"),
        Accepted("NoOtherKeyIsRead", R"({"code":"success","success":false,"status":"fail","error":"x"})"),
        Refused("LastOfTwoCodesFails", R"({"code":"success","code":"fail","message":"m"})", QStringLiteral("fail"),
            QStringLiteral("m")),
        Refused("FailureCode", R"({"code":"NOT_FOUND","message":"no such category"})", QStringLiteral("NOT_FOUND"),
            QStringLiteral("no such category")),
        Refused("CodeAsReceived", R"({"code":"  Fail\t","message":"  m  "})", QStringLiteral("  Fail\t"),
            QStringLiteral("  m  ")),
        Refused("NumberAsCode", R"({"code":200,"message":"ok"})", Empty(), QStringLiteral("ok")),
        Refused("TrueAsCode", R"({"code":true,"message":"ok"})", Empty(), QStringLiteral("ok")),
        Refused("NullAsCode", R"({"code":null,"message":"ok"})", Empty(), QStringLiteral("ok")),
        Refused("ArrayAsCode", R"({"code":["success"],"message":"ok"})", Empty(), QStringLiteral("ok")),
        Refused("ObjectAsCode", R"({"code":{"code":"success"}})", Empty(), Empty()),
        Refused("CodeMissing", R"({"message":"ok","data":[]})", Empty(), QStringLiteral("ok")),
        Refused("MessageMissing", R"({"code":"fail"})", QStringLiteral("fail"), Empty()),
        Refused("MessageNotText", R"({"code":"fail","message":12})", QStringLiteral("fail"), Empty()),
        Refused("EmptyObject", "{}", Empty(), Empty()),
        Refused("ArrayAtTheTop", R"([{"code":"success"}])", Empty(), Empty()),
        Refused("EmptyArrayAtTheTop", "[]", Empty(), Empty()),
        Refused("KeysAreCaseSensitive", R"({"Code":"success","Message":"m"})", Empty(), Empty()),
        Refused("BlankWithinTheCode", R"({"code":"suc cess"})", QStringLiteral("suc cess"), Empty()),
        Refused("CodeThatOnlyBeginsRight", R"({"code":"successful"})", QStringLiteral("successful"), Empty()),
        Refused("CodeThatIsShorter", R"({"code":"succes"})", QStringLiteral("succes"), Empty()),
        Refused("NulBehindTheCode", R"({"code":"success\u0000"})", QStringLiteral("success") + QChar(0), Empty()),
        Refused(
            "PlaceMarkerInTheCode", R"({"code":"%2 %1","message":"m"})", QStringLiteral("%2 %1"), QStringLiteral("m")),
        Refused("PlaceMarkerInTheMessage", R"({"code":"c","message":"%1 %2 %L1 %99"})", QStringLiteral("c"),
            QStringLiteral("%1 %2 %L1 %99")),
        Refused("ChineseText", R"({"code":"失败","message":"参数错误"})", QStringLiteral("失败"),
            QStringLiteral("参数错误")),
        Refused("LettersBeyondTheBasicPlane", R"({"code":"\ud83d\ude00","message":"𠀀"})", QStringLiteral("😀"),
            QStringLiteral("𠀀")),
    };
    return rows;
}

class EnvelopeTest : public HandlerFixture, public testing::WithParamInterface<std::tuple<HandlerBranch, EnvelopeRow>>
{
};

std::string CaseName(const testing::TestParamInfo<std::tuple<HandlerBranch, EnvelopeRow>>& info)
{
    return std::string(std::get<1>(info.param).name) + '_' + std::get<0>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(
    , EnvelopeTest, testing::Combine(testing::ValuesIn(HandlerBranches()), testing::ValuesIn(Envelopes())), CaseName);

TEST_P(EnvelopeTest, IsCheckedByItsCodeAlone)
{
    const auto& [branch, row] = GetParam();
    const FinishedReply reply = FetchBody(row.body);
    const LogRecord arrived = branch.successRecord(reply->url().toString(), QString::fromUtf8(row.body));
    if (row.code.isNull()) {
        EXPECT_EQ(branch.handle(reply.get()), L"");
        EXPECT_THAT(host.logger.Records(), ElementsAre(arrived));
        return;
    }
    const QString text = QStringLiteral("internal request error: custom code - ") + row.code +
                         QStringLiteral(", message - ") + row.message;
    EXPECT_EQ(branch.handle(reply.get()), text.toStdWString());
    EXPECT_THAT(host.logger.Records(), ElementsAre(arrived, LogRecord{LogRecord::Operation::Error, {text}}));
}

} // namespace
