#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"

#include "Records/IProjectComponent.h"
#include "TarnNuqService/ResponseHandlers/ComponentSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/NumberRow.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;
using testing::SizeIs;

class PagedProjectComponentsResponseHandlerTest : public MemoryFixture
{
protected:
    int MapTotalCount(const QByteArray& value)
    {
        return Map<PagedProjectComponentsResponseHandler>("{\"totalCount\":" + value + '}').TotalCount;
    }
};

QByteArray Page(const QJsonArray& list)
{
    return "{\"totalCount\":37,\"list\":" + JsonText(list) + '}';
}

TEST_F(PagedProjectComponentsResponseHandlerTest, GoodPageFillsEveryMember)
{
    const auto page = Map<PagedProjectComponentsResponseHandler>(Page({GoodComponentObject()}));
    EXPECT_EQ(page.TotalCount, 37);
    ASSERT_THAT(page.List, SizeIs(1));
    EXPECT_EQ(Describe(page.List[0]), Describe(GoodComponent()));
}

TEST_F(PagedProjectComponentsResponseHandlerTest, NumericCategoryIdIsKeptAsText)
{
    const auto page = Map<PagedProjectComponentsResponseHandler>(R"({"list":[{"categoryId":7}]})");
    ASSERT_THAT(page.List, SizeIs(1));
    EXPECT_EQ(page.List[0]->CategoryId, L"7");
}

TEST_F(PagedProjectComponentsResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto page = Map<PagedProjectComponentsResponseHandler>(R"({"list":[{}, null, true, 5, "text", []]})");
    ASSERT_THAT(page.List, SizeIs(6));
    for (const auto& component : page.List) {
        EXPECT_EQ(Describe(component), Describe(IProjectComponent()));
    }
}

TEST_F(PagedProjectComponentsResponseHandlerTest, EmptyOrOtherPayloadGivesAnEmptyPageAlsoAfterAFullOne)
{
    PagedProjectComponentsResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"totalCount":1,"list":[{}]}])"}) {
        EXPECT_THAT(Map(handler, Page({QJsonObject()})).List, SizeIs(1));
        const auto page = Map(handler, data);
        EXPECT_EQ(page.TotalCount, 0) << data;
        EXPECT_THAT(page.List, IsEmpty()) << data;
    }
}

TEST_F(PagedProjectComponentsResponseHandlerTest, PageWithoutAListKeepsItsCount)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        const QJsonObject data{{QStringLiteral("totalCount"), 37}};
        const auto page = Map<PagedProjectComponentsResponseHandler>(JsonText(With(data, "list", shape.value)));
        EXPECT_EQ(page.TotalCount, 37) << shape.name;
        EXPECT_THAT(page.List, IsEmpty()) << shape.name;
    }
}

TEST_F(PagedProjectComponentsResponseHandlerTest, PageWithoutACountKeepsItsList)
{
    for (const char* count : {"null", "true", "[37]", R"({"a":37})"}) {
        const auto page =
            Map<PagedProjectComponentsResponseHandler>(QByteArray("{\"list\":[{}],\"totalCount\":") + count + '}');
        EXPECT_EQ(page.TotalCount, 0) << count;
        EXPECT_THAT(page.List, SizeIs(1)) << count;
    }
    EXPECT_EQ(Map<PagedProjectComponentsResponseHandler>(R"({"list":[{}]})").TotalCount, 0);
}

TEST_F(PagedProjectComponentsResponseHandlerTest, CountThatIsADecimalTextCounts)
{
    EXPECT_EQ(MapTotalCount(R"("37")"), 37);
    EXPECT_EQ(MapTotalCount(R"("-1")"), -1);
    EXPECT_EQ(MapTotalCount(R"("0037")"), 37);
    EXPECT_EQ(MapTotalCount(R"("2147483647")"), 2147483647);
    EXPECT_EQ(MapTotalCount(R"(" 37 ")"), QStringLiteral(" 37 ").toInt());
}

TEST_F(PagedProjectComponentsResponseHandlerTest, CountThatIsAnyOtherTextIsZero)
{
    for (const char* count : {"abc", "", "37x", "3.5", "1e3", "2147483648", "0x25", "三十七", "3 7"}) {
        EXPECT_EQ(MapTotalCount(QByteArray(1, '"') + count + '"'), 0) << count;
    }
}

TEST_F(PagedProjectComponentsResponseHandlerTest, TenThousandComponentsKeepTheirOrder)
{
    QJsonArray list;
    for (int version = 0; version < 10000; ++version) {
        list.append(With(GoodComponentObject(), "version", version));
    }
    const auto page = Map<PagedProjectComponentsResponseHandler>(Page(list));
    ASSERT_THAT(page.List, SizeIs(10000));
    for (int version = 0; version < 10000; ++version) {
        ASSERT_EQ(page.List[static_cast<std::size_t>(version)]->Version, version);
    }
}

TEST_F(PagedProjectComponentsResponseHandlerTest, ComponentThatCannotBeMadeIsReportedAndSkipped)
{
    const auto page = MapWithoutMemory<PagedProjectComponentsResponseHandler, IProjectComponent>(
        R"({"totalCount":3,"list":[{"id":"1"},{"id":"2"},{"id":"3"}]})", 2);
    ExpectWarning("PagedProjectComponentsResponseHandler", L"spProjectComponent 为空");
    EXPECT_EQ(page.TotalCount, 3);
    ASSERT_THAT(page.List, SizeIs(2));
    EXPECT_EQ(page.List[0]->Id, L"1");
    EXPECT_EQ(page.List[1]->Id, L"3");
}

class PagedProjectComponentsMemberTest : public HandlerFixture,
                                         public testing::WithParamInterface<MemberRow<IProjectComponent>>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedProjectComponentsMemberTest, testing::ValuesIn(ComponentMembers()), RowName());

TEST_P(PagedProjectComponentsMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodComponentObject(), GoodComponent(), [this](const QJsonObject& object) {
        return Only(Map<PagedProjectComponentsResponseHandler>(Page({object})).List);
    });
}

class PagedProjectComponentsNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedProjectComponentsNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(PagedProjectComponentsNumberTest, CountIsReadWhenItIsAWhole32BitNumber)
{
    const auto page =
        Map<PagedProjectComponentsResponseHandler>(QByteArray("{\"totalCount\":") + GetParam().json + '}');
    EXPECT_EQ(page.TotalCount, GetParam().value);
}

} // namespace
