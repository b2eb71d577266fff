#include "ResponseHandlers/CustomReply.h"

#include "Records/ICategoryMapping.h"
#include "Records/ILegend.h"
#include "TarnNuqService/PendingReplies/PendingReplyFixture.h"
#include "TarnNuqService/PendingReplies/ThrowingHandler.h"
#include "support/NamedCase.h"

#include <stdexcept>

namespace {

using Mappings = tarnnuq::RecordList<tarnnuq::ICategoryMapping>;
using Legends = tarnnuq::RecordPage<tarnnuq::ILegend>;
using tarnnuq::CustomReply;
using testsupport::LogRecord;
using testsupport::ScriptedResponse;
using testsupport::ThrowingHandler;
using testsupport::ThrowingResult;

const QByteArray TwoMappings = R"({"code":"success","data":[)"
                               R"({"componentEditorCategoryId":"e1","categoryId":11,"categoryCode":"c1"},)"
                               R"({"componentEditorCategoryId":"e2","categoryId":12,"categoryCode":"c2"}]})";
const QByteArray OneLegend =
    R"({"code":"success","data":{"totalCount":41,"list":[{"id":5,"name":"阀","placeholderType":2}]}})";

/// The handler for a type logs how it was made; that is none of the tests' business.
class CustomReplyTest : public testsupport::PendingReplyFixture
{
protected:
    CustomReplyTest()
    {
        tarnnuq::ResponseHandlerRegistry::Get<Mappings>();
        tarnnuq::ResponseHandlerRegistry::Get<Legends>();
        host.logger.Clear();
    }

    static std::vector<std::wstring> CodesOf(const Mappings& mappings)
    {
        std::vector<std::wstring> codes;
        for (const auto& mapping : mappings) {
            codes.push_back(mapping->CategoryCode);
        }
        return codes;
    }
};

/// What a server answers, the error texts of a typed reply and of a paged one, and which operations log it.
struct FailureCase : testsupport::NamedCase
{
    ScriptedResponse response;
    QString error;
    QString pagedError;
    std::vector<LogRecord::Operation> logged;
};

class CustomReplyFailureTest : public CustomReplyTest, public ::testing::WithParamInterface<FailureCase>
{
protected:
    std::vector<LogRecord::Operation> LoggedOperations() const
    {
        std::vector<LogRecord::Operation> operations;
        for (const LogRecord& record : host.logger.Records()) {
            operations.push_back(record.operation);
        }
        return operations;
    }

    std::wstring Filled(const QString& error) const
    {
        return QString(error).replace(QLatin1String("URL"), LastUrl()).toStdWString();
    }
};

FailureCase TransportCase(const char* name, const ScriptedResponse& response, int status, const char* message)
{
    const QString text =
        QStringLiteral("http code - %1, message - %2").arg(QString::number(status), QString::fromUtf8(message));
    return {{name}, response, QStringLiteral("request error: ") + text, QStringLiteral("request error:") + text,
        {LogRecord::Operation::Error}};
}

FailureCase BodyCase(const char* name, const QByteArray& body, const char* error)
{
    const QString text = QString::fromUtf8(error);
    return {
        {name}, ScriptedResponse::Json(body), text, text, {LogRecord::Operation::Info, LogRecord::Operation::Error}};
}

} // namespace

TEST_F(CustomReplyTest, MapsAListAndSaysSoOnce)
{
    CustomReply<Mappings> pending;
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json(TwoMappings))), 1);
    EXPECT_EQ(pending.Error(), L"");
    EXPECT_EQ(CodesOf(pending.Result()), (std::vector<std::wstring>{L"c1", L"c2"}));
}

TEST_F(CustomReplyTest, MapsAPageAndSaysSoOnce)
{
    CustomReply<Legends> pending;
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json(OneLegend))), 1);
    EXPECT_EQ(pending.Error(), L"");
    EXPECT_EQ(pending.Result().TotalCount, 41);
    ASSERT_EQ(pending.Result().List.size(), 1U);
    EXPECT_EQ(pending.Result().List.front()->Name, L"阀");
}

TEST_F(CustomReplyTest, TheResultIsThereWhenItSaysSo)
{
    CustomReply<Mappings> pending;
    std::size_t seen = 0;
    QObject::connect(&pending, &tarnnuq::CustomReplyBase::Finished, [&] { seen = pending.Result().size(); });
    Run(pending, Get(ScriptedResponse::Json(TwoMappings)));
    EXPECT_EQ(seen, 2U);
}

TEST_F(CustomReplyTest, TheResultOutlivesThePendingReplyAndTheNextUseOfTheHandler)
{
    Mappings first;
    {
        CustomReply<Mappings> pending;
        Run(pending, Get(ScriptedResponse::Json(TwoMappings)));
        first = pending.Result();
    }
    CustomReply<Mappings> next;
    Run(next, Get(ScriptedResponse::Json(R"({"code":"success","data":[]})")));
    EXPECT_EQ(CodesOf(first), (std::vector<std::wstring>{L"c1", L"c2"}));
    EXPECT_TRUE(next.Result().empty());
}

TEST_F(CustomReplyTest, TwoAtOnceGetTheirOwnResults)
{
    CustomReply<Mappings> slow;
    CustomReply<Mappings> quick;
    const QSignalSpy finished(&slow, &tarnnuq::CustomReplyBase::Finished);
    slow.SetReply(Get(ScriptedResponse::Json(TwoMappings).Delayed(std::chrono::milliseconds(50))));
    Run(quick, Get(ScriptedResponse::Json(R"({"code":"fail","message":"no"})")));
    EXPECT_TRUE(testsupport::WaitFor([&] { return finished.count() == 1; }));
    EXPECT_EQ(quick.Error(), L"internal request error: custom code - fail, message - no");
    EXPECT_TRUE(quick.Result().empty());
    EXPECT_EQ(slow.Error(), L"");
    EXPECT_EQ(slow.Result().size(), 2U);
}

TEST_F(CustomReplyTest, AFailureAfterASuccessLeavesNoTraceOfIt)
{
    CustomReply<Mappings> pending;
    Run(pending, Get(ScriptedResponse::Json(TwoMappings)));
    Run(pending, Get(ScriptedResponse::Json("{}")));
    EXPECT_EQ(pending.Error(), L"internal request error: custom code - , message - ");
    EXPECT_TRUE(pending.Result().empty());
}

TEST_F(CustomReplyTest, ASuccessAfterAFailureHasNoError)
{
    CustomReply<Mappings> pending;
    pending.SetReply(nullptr);
    Run(pending, Get(ScriptedResponse::Json("{}")));
    Run(pending, Get(ScriptedResponse::Json(TwoMappings)));
    EXPECT_EQ(pending.Error(), L"");
    EXPECT_EQ(pending.Result().size(), 2U);
}

TEST_F(CustomReplyTest, HandledWithoutAReplyItTellsTheHandlersError)
{
    CustomReply<Mappings> pending;
    const QSignalSpy finished(&pending, &tarnnuq::CustomReplyBase::Finished);
    QMetaObject::invokeMethod(&pending, "HandleReply", Qt::DirectConnection);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(pending.Error(), L"Reply is null!");
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_P(CustomReplyFailureTest, OfATypedReplyIsToldOnce)
{
    CustomReply<Mappings> pending;
    EXPECT_EQ(Run(pending, Get(GetParam().response)), 1);
    EXPECT_EQ(pending.Error(), Filled(GetParam().error));
    EXPECT_TRUE(pending.Result().empty());
    EXPECT_EQ(LoggedOperations(), GetParam().logged);
}

TEST_P(CustomReplyFailureTest, OfAPagedReplyIsToldOnce)
{
    CustomReply<Legends> pending;
    EXPECT_EQ(Run(pending, Get(GetParam().response)), 1);
    EXPECT_EQ(pending.Error(), Filled(GetParam().pagedError));
    EXPECT_TRUE(pending.Result().List.empty());
    EXPECT_EQ(pending.Result().TotalCount, 0);
    EXPECT_EQ(LoggedOperations(), GetParam().logged);
}

INSTANTIATE_TEST_SUITE_P(Answers, CustomReplyFailureTest,
    ::testing::Values(TransportCase("NotFound", ScriptedResponse::Json("{}", 404), 404,
                          "Error transferring URL - server replied: Not Found"),
        TransportCase("Unauthorized", ScriptedResponse::Json("{}", 401), 401, "Host requires authentication"),
        TransportCase("ServerError", ScriptedResponse::Json(TwoMappings, 500), 500,
            "Error transferring URL - server replied: Internal Server Error"),
        TransportCase("ClosedBeforeTheHeaders",
            ScriptedResponse::Json("{}").CutAt(ScriptedResponse::CutPoint::BeforeHeaders), 0, "Connection closed"),
        TransportCase("ClosedWithinTheBody",
            ScriptedResponse::Json(TwoMappings).CutAt(ScriptedResponse::CutPoint::WithinBody), 200,
            "Connection closed"),
        BodyCase("EmptyBody", "", "fail to parse response body:error type - 5"),
        BodyCase("NoJson", "<html>", "fail to parse response body:error type - 5"),
        BodyCase("CodeOfAFailure", R"({"code":"E7","message":"坏 %1","data":[{}]})",
            "internal request error: custom code - E7, message - 坏 %1"),
        BodyCase("CodeThatIsANumber", R"({"code":200,"message":"ok"})",
            "internal request error: custom code - , message - ok"),
        BodyCase("AnArray", "[" + TwoMappings + "]", "internal request error: custom code - , message - ")),
    testsupport::RowName());

TEST_F(CustomReplyTest, ATypeWithoutAHandlerIsAnError)
{
    CustomReply<int> pending;
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json(TwoMappings))), 1);
    EXPECT_EQ(pending.Error(), L"ResponseHandler not found.");
    EXPECT_EQ(pending.Result(), 0);
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(CustomReplyTest, AStandardExceptionOfTheHandlerIsAnError)
{
    CustomReply<ThrowingResult> pending;
    Run(pending, Get(ScriptedResponse::Json("{}")));
    EXPECT_EQ(pending.Result().value, 7);
    testsupport::RegisteredThrowingHandler().toThrow = [] { throw std::runtime_error("no"); };
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json("{}"))), 1);
    EXPECT_EQ(pending.Error(), L"Unknown Error.");
    EXPECT_EQ(pending.Result().value, 0);
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(CustomReplyTest, AnyOtherExceptionOfTheHandlerIsTheSameError)
{
    testsupport::RegisteredThrowingHandler().toThrow = [] { throw 5; };
    CustomReply<ThrowingResult> pending;
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Json("{}"))), 1);
    EXPECT_EQ(pending.Error(), L"Unknown Error.");
    EXPECT_EQ(pending.Result().value, 0);
}

TEST_F(CustomReplyTest, AStoredHandlerIsKeptAliveAndNeverAsked)
{
    auto handler = std::make_shared<ThrowingHandler>();
    handler->toThrow = [] { throw std::runtime_error("asked"); };
    const std::weak_ptr<ThrowingHandler> stored = handler;
    {
        CustomReply<ThrowingResult> pending;
        pending.SetResponseHandler(std::move(handler));
        EXPECT_FALSE(stored.expired());
        Run(pending, Get(ScriptedResponse::Json("{}")));
        EXPECT_EQ(pending.Result().value, 7);
        EXPECT_FALSE(stored.expired());
    }
    EXPECT_TRUE(stored.expired());
}

TEST_F(CustomReplyTest, AStoredHandlerDoesNotStandInForAMissingOne)
{
    class IntHandler final : public tarnnuq::IResponseHandler<int>
    {
    public:
        int Handle(QNetworkReply*, std::wstring&) override { return 7; }

    protected:
        void HandleBody(const QJsonObject&) override {}
    };
    CustomReply<int> pending;
    pending.SetResponseHandler(std::make_shared<IntHandler>());
    Run(pending, Get(ScriptedResponse::Json("{}")));
    EXPECT_EQ(pending.Error(), L"ResponseHandler not found.");
    EXPECT_EQ(pending.Result(), 0);
}
