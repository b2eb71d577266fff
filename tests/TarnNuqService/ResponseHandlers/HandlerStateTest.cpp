#include "Records/ICategory.h"
#include "ResponseHandlers/PyxResponseHandler.h"
#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "TarnNuqService/ResponseHandlers/ProbeHandler.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gmock/gmock.h>
#include <stdexcept>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;
using testing::SizeIs;

/// A result type that no concrete handler has: the branches' templates serve any.
using Result = RecordPtr<ICategory>;
using BaseProbe = ProbeHandler<ResponseHandlerBase<Result>, Result>;
using InterfaceProbe = ProbeHandler<PyxResponseHandler<Result>, Result>;

/// What every handler does between replies, in both branches.
template <typename Probe>
class HandlerStateTest : public HandlerFixture
{
protected:
    /// Handles a reply whose payload becomes a record.
    Result HandleGoodReply()
    {
        handler.onPayload = [](Probe& probe) { probe.OwnResult() = std::make_shared<ICategory>(); };
        return handler.Handle(FetchBody(SuccessBody("[]")).get(), error);
    }

    Probe handler;
    std::wstring error = L"stale";
};

using Probes = testing::Types<BaseProbe, InterfaceProbe>;
TYPED_TEST_SUITE(HandlerStateTest, Probes);

TYPED_TEST(HandlerStateTest, PayloadIsPassedWhole)
{
    for (const char* data : {"null", "true", "12.5", R"("text")", "[1,[2]]", R"({"a":{"b":[]}})"}) {
        const QByteArray wrapped = QByteArray("[") + data + "]";
        this->handler.payloads.clear();
        this->handler.Handle(this->FetchBody(SuccessBody(data)).get(), this->error);
        ASSERT_THAT(this->handler.payloads, SizeIs(1)) << data;
        EXPECT_EQ(this->handler.payloads[0], QJsonDocument::fromJson(wrapped).array().at(0)) << data;
    }
}

TYPED_TEST(HandlerStateTest, MissingPayloadIsUndefinedRatherThanNull)
{
    this->handler.Handle(this->FetchBody(R"({"code":"success"})").get(), this->error);
    ASSERT_THAT(this->handler.payloads, SizeIs(1));
    EXPECT_TRUE(this->handler.payloads[0].isUndefined());
}

TYPED_TEST(HandlerStateTest, LastOfTwoPayloadsCounts)
{
    this->handler.Handle(this->FetchBody(R"({"data":1,"code":"success","data":2})").get(), this->error);
    ASSERT_THAT(this->handler.payloads, SizeIs(1));
    EXPECT_EQ(this->handler.payloads[0], QJsonValue(2));
}

TYPED_TEST(HandlerStateTest, PayloadOfAFailedReplyIsNotLookedAt)
{
    this->handler.Handle(nullptr, this->error);
    this->handler.Handle(this->Fetch(ScriptedResponse::Json(SuccessBody("[]"), 500)).get(), this->error);
    this->handler.Handle(this->FetchBody("no JSON").get(), this->error);
    this->handler.Handle(this->FetchBody(R"({"code":"fail","data":[]})").get(), this->error);
    EXPECT_THAT(this->handler.payloads, IsEmpty());
}

TYPED_TEST(HandlerStateTest, ErrorTextOfTheCallerIsReplacedBySuccess)
{
    EXPECT_NE(this->HandleGoodReply(), nullptr);
    EXPECT_EQ(this->error, L"");
}

TYPED_TEST(HandlerStateTest, ResultIsACopyThatSharesTheRecord)
{
    const Result result = this->HandleGoodReply();
    EXPECT_EQ(this->handler.OwnResult(), result);
    EXPECT_EQ(result.use_count(), 2);
}

TYPED_TEST(HandlerStateTest, FailureAfterASuccessLeavesNoTraceOfIt)
{
    const std::weak_ptr<ICategory> first = this->HandleGoodReply();
    ASSERT_FALSE(first.expired());
    EXPECT_EQ(this->handler.Handle(this->FetchBody("no JSON").get(), this->error), nullptr);
    EXPECT_EQ(this->error, L"fail to parse response body:error type - 5");
    EXPECT_EQ(this->handler.OwnResult(), nullptr);
    EXPECT_TRUE(first.expired());
}

TYPED_TEST(HandlerStateTest, MissingReplyAfterASuccessReleasesItsResult)
{
    const std::weak_ptr<ICategory> first = this->HandleGoodReply();
    EXPECT_EQ(this->handler.Handle(nullptr, this->error), nullptr);
    EXPECT_TRUE(first.expired());
}

TYPED_TEST(HandlerStateTest, SuccessAfterAFailureLeavesNoTraceOfIt)
{
    this->handler.Handle(nullptr, this->error);
    EXPECT_EQ(this->error, L"Reply is null!");
    EXPECT_EQ(this->handler.OwnError(), L"Reply is null!");
    this->HandleGoodReply();
    EXPECT_EQ(this->error, L"");
    EXPECT_EQ(this->handler.OwnError(), L"");
}

TYPED_TEST(HandlerStateTest, ResultIsResetBeforeThePayloadIsHandled)
{
    this->HandleGoodReply();
    bool wasReset = false;
    this->handler.onPayload = [&wasReset](TypeParam& probe) {
        wasReset = probe.OwnResult() == nullptr && probe.OwnError().empty();
    };
    this->handler.Handle(this->FetchBody(SuccessBody("[]")).get(), this->error);
    EXPECT_TRUE(wasReset);
}

TYPED_TEST(HandlerStateTest, ErrorOfThePayloadIsReturnedWithWhatWasBuilt)
{
    this->handler.onPayload = [](TypeParam& probe) {
        probe.OwnResult() = std::make_shared<ICategory>();
        probe.OwnError() = L"cannot be used";
    };
    EXPECT_NE(this->handler.Handle(this->FetchBody(SuccessBody("[]")).get(), this->error), nullptr);
    EXPECT_EQ(this->error, L"cannot be used");
}

TYPED_TEST(HandlerStateTest, OwnErrorFieldMayBeTheCallersErrorText)
{
    this->handler.Handle(nullptr, this->handler.OwnError());
    EXPECT_EQ(this->handler.OwnError(), L"Reply is null!");
    this->handler.Handle(this->FetchBody(SuccessBody("[]")).get(), this->handler.OwnError());
    EXPECT_EQ(this->handler.OwnError(), L"");
}

TYPED_TEST(HandlerStateTest, ExceptionFromThePayloadPassesThrough)
{
    this->handler.onPayload = [](TypeParam&) { throw std::runtime_error("from the payload"); };
    const FinishedReply reply = this->FetchBody(SuccessBody("[]"));
    try {
        this->handler.Handle(reply.get(), this->error);
        FAIL() << "no exception";
    } catch (const std::runtime_error& thrown) {
        EXPECT_STREQ(thrown.what(), "from the payload");
    }
}

TYPED_TEST(HandlerStateTest, HandlerWorksAgainAfterAnException)
{
    this->handler.onPayload = [](TypeParam& probe) {
        probe.OwnResult() = std::make_shared<ICategory>();
        throw 1;
    };
    EXPECT_THROW(this->handler.Handle(this->FetchBody(SuccessBody("[]")).get(), this->error), int);
    EXPECT_EQ(this->handler.Handle(nullptr, this->error), nullptr);
    EXPECT_NE(this->HandleGoodReply(), nullptr);
    EXPECT_EQ(this->error, L"");
}

TYPED_TEST(HandlerStateTest, CopiesCopyResultAndErrorAndAreIndependent)
{
    this->handler.OwnResult() = std::make_shared<ICategory>();
    this->handler.OwnError() = L"kept";
    TypeParam constructed(this->handler);
    TypeParam assigned;
    assigned = this->handler;
    for (TypeParam* copy : {&constructed, &assigned}) {
        EXPECT_EQ(copy->OwnResult(), this->handler.OwnResult());
        EXPECT_EQ(copy->OwnError(), L"kept");
        copy->Handle(nullptr, this->error);
    }
    EXPECT_NE(this->handler.OwnResult(), nullptr);
    EXPECT_EQ(this->handler.OwnError(), L"kept");
}

} // namespace
