#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/SimpleDataResponseHandler.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::ElementsAre;
using testing::IsEmpty;
using Categories = RecordList<ICategory>;

/// Shows both pairs of fields of a handler below ResponseHandlerBase.
template <typename Handler, typename T>
class BothPairs : public Handler
{
public:
    T& Result() { return this->m_result; }
    std::wstring& Error() { return this->m_error; }
    T& InheritedResult() { return IResponseHandler<T>::m_result; }
    std::wstring& InheritedError() { return IResponseHandler<T>::m_error; }
};

using CategoriesPairs = BothPairs<CategoriesResponseHandler, Categories>;

class BaseFieldsTest : public HandlerFixture
{
protected:
    CategoriesPairs handler;
    std::wstring error;
};

TEST_F(BaseFieldsTest, SuccessFillsTheOwnPairAlone)
{
    handler.Handle(FetchBody(SuccessBody("[{}]")).get(), error);
    EXPECT_EQ(handler.Result().size(), 1u);
    EXPECT_THAT(handler.InheritedResult(), IsEmpty());
    EXPECT_EQ(handler.InheritedError(), L"");
}

TEST_F(BaseFieldsTest, FailureFillsTheOwnPairAlone)
{
    handler.Handle(nullptr, error);
    EXPECT_EQ(handler.Error(), L"Reply is null!");
    EXPECT_THAT(handler.InheritedResult(), IsEmpty());
    EXPECT_EQ(handler.InheritedError(), L"");
}

TEST_F(BaseFieldsTest, InheritedPairIsNeitherReadNorReset)
{
    handler.InheritedResult() = {std::make_shared<ICategory>()};
    handler.InheritedError() = L"inherited";
    EXPECT_THAT(handler.Handle(nullptr, error), IsEmpty());
    EXPECT_EQ(error, L"Reply is null!");
    EXPECT_EQ(handler.InheritedResult().size(), 1u);
    EXPECT_EQ(handler.InheritedError(), L"inherited");
}

TEST_F(BaseFieldsTest, InheritedErrorMayServeAsTheCallersErrorText)
{
    handler.Handle(nullptr, handler.InheritedError());
    EXPECT_EQ(handler.InheritedError(), L"Reply is null!");
}

TEST_F(BaseFieldsTest, CopiesCopyBothPairs)
{
    handler.Result() = {std::make_shared<ICategory>()};
    handler.Error() = L"own";
    handler.InheritedResult() = {std::make_shared<ICategory>(), nullptr};
    handler.InheritedError() = L"inherited";
    CategoriesPairs constructed(handler);
    CategoriesPairs assigned;
    assigned = handler;
    for (CategoriesPairs* copy : {&constructed, &assigned}) {
        EXPECT_EQ(copy->Result(), handler.Result());
        EXPECT_EQ(copy->Error(), L"own");
        EXPECT_EQ(copy->InheritedResult(), handler.InheritedResult());
        EXPECT_EQ(copy->InheritedError(), L"inherited");
    }
}

template <typename T>
class SimpleDataResponseHandlerTest : public HandlerFixture
{
};

using SimpleResults = testing::Types<RecordPage<ILegend>, RecordList<ICategoryMapping>>;
TYPED_TEST_SUITE(SimpleDataResponseHandlerTest, SimpleResults);

TYPED_TEST(SimpleDataResponseHandlerTest, EveryPayloadIsAnErrorThatIsNotLogged)
{
    SimpleDataResponseHandler<TypeParam> handler;
    for (const char* data : {"null", "[]", "[{}]", R"({"totalCount":1,"list":[{}]})"}) {
        this->host.logger.Clear();
        std::wstring error;
        handler.Handle(this->FetchBody(SuccessBody(data)).get(), error);
        EXPECT_EQ(error, L"undefined simple data handler.");
        EXPECT_THAT(this->host.logger.RecordsOf(LogRecord::Operation::Error), IsEmpty());
        EXPECT_EQ(this->host.logger.Records().size(), 1u);
    }
}

TYPED_TEST(SimpleDataResponseHandlerTest, FailedReplyKeepsItsOwnError)
{
    std::wstring error;
    SimpleDataResponseHandler<TypeParam>().Handle(this->FetchBody(R"({"code":"c","message":"m"})").get(), error);
    EXPECT_EQ(error, L"internal request error: custom code - c, message - m");
}

TYPED_TEST(SimpleDataResponseHandlerTest, PayloadLeavesTheResultAlone)
{
    class Payload : public BothPairs<SimpleDataResponseHandler<TypeParam>, TypeParam>
    {
    public:
        using SimpleDataResponseHandler<TypeParam>::HandleData;
    };
    Payload handler;
    auto& list = [&handler]() -> auto&
    {
        if constexpr (std::is_same_v<TypeParam, RecordPage<ILegend>>) {
            return handler.Result().List;
        } else {
            return handler.Result();
        }
    }
    ();
    list.resize(2);
    handler.HandleData(QJsonValue());
    EXPECT_EQ(list.size(), 2u);
    EXPECT_EQ(handler.Error(), L"undefined simple data handler.");
    EXPECT_EQ(handler.InheritedError(), L"");
}

} // namespace
