#include "ResponseHandlers/LegendsResponseHandler.h"

#include "TarnNuqService/ResponseHandlers/LegendSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;
using testing::SizeIs;

class LegendsResponseHandlerTest : public MemoryFixture
{
};

/// The plain reply's standard source is not read.
ILegend GoodListLegend()
{
    ILegend legend = GoodLegend();
    legend.StandardSource.clear();
    return legend;
}

TEST_F(LegendsResponseHandlerTest, GoodLegendFillsEveryMemberButTheStandardSource)
{
    const auto legends = Map<LegendsResponseHandler>(JsonText(QJsonArray{GoodLegendObject()}));
    ASSERT_THAT(legends, SizeIs(1));
    EXPECT_EQ(Describe(legends[0]), Describe(GoodListLegend()));
}

TEST_F(LegendsResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto legends = Map<LegendsResponseHandler>(R"([{}, null, true, 5, "PLAN", [{"id":1}]])");
    ASSERT_THAT(legends, SizeIs(6));
    for (const auto& legend : legends) {
        EXPECT_EQ(Describe(legend), Describe(ILegend()));
    }
}

TEST_F(LegendsResponseHandlerTest, PayloadThatIsNoArrayGivesAnEmptyListAlsoAfterAFullOne)
{
    LegendsResponseHandler handler;
    for (const char* data : {"[]", "{}", "null", "true", "5", R"("text")", R"({"list":[{}]})"}) {
        EXPECT_THAT(Map(handler, "[{}]"), SizeIs(1));
        EXPECT_THAT(Map(handler, data), IsEmpty()) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(LegendsResponseHandlerTest, TenThousandLegendsKeepTheirOrder)
{
    QJsonArray data;
    for (int id = 0; id < 10000; ++id) {
        data.append(With(GoodLegendObject(), "id", id));
    }
    const auto legends = Map<LegendsResponseHandler>(JsonText(data));
    ASSERT_THAT(legends, SizeIs(10000));
    for (int id = 0; id < 10000; ++id) {
        ASSERT_EQ(legends[static_cast<std::size_t>(id)]->Id, id);
    }
}

TEST_F(LegendsResponseHandlerTest, LegendThatCannotBeMadeIsReportedAndSkipped)
{
    const auto legends = MapWithoutMemory<LegendsResponseHandler, ILegend>(R"([{"id":1},{"id":2},{"id":3}])", 2);
    ExpectWarning("LegendsResponseHandler", L"spLegend 为空");
    ASSERT_THAT(legends, SizeIs(2));
    EXPECT_EQ(legends[0]->Id, 1);
    EXPECT_EQ(legends[1]->Id, 3);
}

class LegendsMemberTest : public HandlerFixture, public testing::WithParamInterface<MemberRow<ILegend>>
{
};

INSTANTIATE_TEST_SUITE_P(, LegendsMemberTest, testing::ValuesIn(LegendMembers()), RowName());

TEST_P(LegendsMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodLegendObject(), GoodListLegend(),
        [this](const QJsonObject& object) { return Only(Map<LegendsResponseHandler>(JsonText(QJsonArray{object}))); });
}

class LegendsViewTest : public HandlerFixture, public testing::WithParamInterface<ViewRow>
{
};

INSTANTIATE_TEST_SUITE_P(, LegendsViewTest, testing::ValuesIn(ViewRows()), RowName());

TEST_P(LegendsViewTest, IsReadFromNumberOrText)
{
    const auto legends = Map<LegendsResponseHandler>(QByteArray("[{\"placeholderType\":") + GetParam().json + "}]");
    ASSERT_THAT(legends, SizeIs(1));
    EXPECT_EQ(legends[0]->Type, GetParam().view);
}

class LegendsIdTest : public HandlerFixture, public testing::WithParamInterface<LegendIdRow>
{
};

INSTANTIATE_TEST_SUITE_P(, LegendsIdTest, testing::ValuesIn(LegendIdRows()), RowName());

TEST_P(LegendsIdTest, IsReadAsA64BitNumber)
{
    const auto legends = Map<LegendsResponseHandler>(QByteArray("[{\"id\":") + GetParam().json + "}]");
    ASSERT_THAT(legends, SizeIs(1));
    EXPECT_EQ(legends[0]->Id, GetParam().id);
}

} // namespace
