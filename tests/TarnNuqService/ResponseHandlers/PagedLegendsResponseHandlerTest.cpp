#include "ResponseHandlers/PagedLegendsResponseHandler.h"

#include "TarnNuqService/ResponseHandlers/LegendSample.h"
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

class PagedLegendsResponseHandlerTest : public MemoryFixture
{
};

QByteArray Page(const QJsonArray& list)
{
    return "{\"totalCount\":37,\"list\":" + JsonText(list) + '}';
}

TEST_F(PagedLegendsResponseHandlerTest, GoodPageFillsEveryMember)
{
    const auto page = Map<PagedLegendsResponseHandler>(Page({GoodLegendObject()}));
    EXPECT_EQ(page.TotalCount, 37);
    ASSERT_THAT(page.List, SizeIs(1));
    EXPECT_EQ(Describe(page.List[0]), Describe(GoodLegend()));
}

TEST_F(PagedLegendsResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto page = Map<PagedLegendsResponseHandler>(R"({"list":[{}, null, true, 5, "PLAN", [{"id":1}]]})");
    ASSERT_THAT(page.List, SizeIs(6));
    for (const auto& legend : page.List) {
        EXPECT_EQ(Describe(legend), Describe(ILegend()));
    }
}

TEST_F(PagedLegendsResponseHandlerTest, EmptyOrOtherPayloadGivesAnEmptyPageAlsoAfterAFullOne)
{
    PagedLegendsResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"totalCount":1,"list":[{}]}])"}) {
        EXPECT_THAT(Map(handler, Page({QJsonObject()})).List, SizeIs(1));
        const auto page = Map(handler, data);
        EXPECT_EQ(page.TotalCount, 0) << data;
        EXPECT_THAT(page.List, IsEmpty()) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(PagedLegendsResponseHandlerTest, CountAsTextIsZeroWhileTheListIsFilled)
{
    const auto page = Map<PagedLegendsResponseHandler>(R"({"totalCount":"12","list":[{},{}]})");
    EXPECT_EQ(page.TotalCount, 0);
    EXPECT_THAT(page.List, SizeIs(2));
}

TEST_F(PagedLegendsResponseHandlerTest, CountOfAnotherTypeIsZero)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Double})) {
        const QJsonObject data{{QStringLiteral("list"), QJsonArray{QJsonObject()}}};
        const auto page = Map<PagedLegendsResponseHandler>(JsonText(With(data, "totalCount", shape.value)));
        EXPECT_EQ(page.TotalCount, 0) << shape.name;
        EXPECT_THAT(page.List, SizeIs(1)) << shape.name;
    }
}

TEST_F(PagedLegendsResponseHandlerTest, PageWithoutAListKeepsItsCount)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        const QJsonObject data{{QStringLiteral("totalCount"), 37}};
        const auto page = Map<PagedLegendsResponseHandler>(JsonText(With(data, "list", shape.value)));
        EXPECT_EQ(page.TotalCount, 37) << shape.name;
        EXPECT_THAT(page.List, IsEmpty()) << shape.name;
    }
}

TEST_F(PagedLegendsResponseHandlerTest, StandardSourceOfAnotherTypeIsEmpty)
{
    ILegend expected = GoodLegend();
    expected.StandardSource.clear();
    for (const JsonShape& shape : ShapesExcept({QJsonValue::String})) {
        const auto page =
            Map<PagedLegendsResponseHandler>(Page({With(GoodLegendObject(), "standardSource", shape.value)}));
        ASSERT_THAT(page.List, SizeIs(1));
        EXPECT_EQ(Describe(page.List[0]), Describe(expected)) << shape.name;
    }
}

TEST_F(PagedLegendsResponseHandlerTest, TenThousandLegendsKeepTheirOrder)
{
    QJsonArray list;
    for (int id = 0; id < 10000; ++id) {
        list.append(With(GoodLegendObject(), "id", id));
    }
    const auto page = Map<PagedLegendsResponseHandler>(Page(list));
    ASSERT_THAT(page.List, SizeIs(10000));
    for (int id = 0; id < 10000; ++id) {
        ASSERT_EQ(page.List[static_cast<std::size_t>(id)]->Id, id);
    }
}

TEST_F(PagedLegendsResponseHandlerTest, LegendThatCannotBeMadeIsReportedAndSkipped)
{
    const auto page = MapWithoutMemory<PagedLegendsResponseHandler, ILegend>(
        R"({"totalCount":3,"list":[{"id":1},{"id":2},{"id":3}]})", 2);
    ExpectWarning("PagedLegendsResponseHandler", L"spLegend为空", L"2020-05-29");
    EXPECT_EQ(page.TotalCount, 3);
    ASSERT_THAT(page.List, SizeIs(2));
    EXPECT_EQ(page.List[0]->Id, 1);
    EXPECT_EQ(page.List[1]->Id, 3);
}

class PagedLegendsMemberTest : public HandlerFixture, public testing::WithParamInterface<MemberRow<ILegend>>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedLegendsMemberTest, testing::ValuesIn(LegendMembers()), RowName());

TEST_P(PagedLegendsMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodLegendObject(), GoodLegend(),
        [this](const QJsonObject& object) { return Only(Map<PagedLegendsResponseHandler>(Page({object})).List); });
}

class PagedLegendsViewTest : public HandlerFixture, public testing::WithParamInterface<ViewRow>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedLegendsViewTest, testing::ValuesIn(ViewRows()), RowName());

TEST_P(PagedLegendsViewTest, IsReadFromNumberOrText)
{
    const auto page =
        Map<PagedLegendsResponseHandler>(QByteArray("{\"list\":[{\"placeholderType\":") + GetParam().json + "}]}");
    ASSERT_THAT(page.List, SizeIs(1));
    EXPECT_EQ(page.List[0]->Type, GetParam().view);
}

class PagedLegendsIdTest : public HandlerFixture, public testing::WithParamInterface<LegendIdRow>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedLegendsIdTest, testing::ValuesIn(LegendIdRows()), RowName());

TEST_P(PagedLegendsIdTest, IsReadAsA64BitNumber)
{
    const auto page = Map<PagedLegendsResponseHandler>(QByteArray("{\"list\":[{\"id\":") + GetParam().json + "}]}");
    ASSERT_THAT(page.List, SizeIs(1));
    EXPECT_EQ(page.List[0]->Id, GetParam().id);
}

class PagedLegendsNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, PagedLegendsNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(PagedLegendsNumberTest, CountIsReadWhenItIsAWhole32BitNumber)
{
    const auto page = Map<PagedLegendsResponseHandler>(QByteArray("{\"totalCount\":") + GetParam().json + '}');
    EXPECT_EQ(page.TotalCount, GetParam().value);
}

} // namespace
