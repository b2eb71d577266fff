#include "ResponseHandlers/CategoryMappingsResponseHandler.h"

#include "Records/ICategoryMapping.h"
#include "TarnNuqService/ResponseHandlers/JsonShapes.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/NumberRow.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CategoryMappingsResponseHandlerTest : public MemoryFixture
{
protected:
    /// The one mapping of a payload's one element.
    ICategoryMapping MapOne(const QByteArray& object)
    {
        const auto mappings = Map<CategoryMappingsResponseHandler>('[' + object + ']');
        EXPECT_THAT(mappings, SizeIs(1));
        return mappings.empty() ? ICategoryMapping() : *mappings[0];
    }
};

QJsonObject GoodObject()
{
    return {{QStringLiteral("componentEditorCategoryId"), QStringLiteral("E-1")}, {QStringLiteral("categoryId"), 1001},
        {QStringLiteral("categoryCode"), QStringLiteral("10.01")},
        {QStringLiteral("name"), QJsonArray{QStringLiteral("暖通"), QStringLiteral("风管")}},
        {QStringLiteral("major"), 1}};
}

ICategoryMapping GoodMapping()
{
    ICategoryMapping mapping;
    mapping.ComponentEditorCategoryId = L"E-1";
    mapping.CategoryId = 1001;
    mapping.CategoryCode = L"10.01";
    mapping.Names = {L"暖通", L"风管"};
    mapping.Major = ICategoryMapping::Hvac;
    return mapping;
}

TEST_F(CategoryMappingsResponseHandlerTest, GoodMappingFillsEveryMember)
{
    EXPECT_EQ(Describe(MapOne(JsonText(GoodObject()))), Describe(GoodMapping()));
}

TEST_F(CategoryMappingsResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto mappings = Map<CategoryMappingsResponseHandler>(R"([{}, null, true, 5, "text", [1]])");
    ASSERT_THAT(mappings, SizeIs(6));
    for (const auto& mapping : mappings) {
        EXPECT_EQ(Describe(mapping), Describe(ICategoryMapping()));
    }
}

TEST_F(CategoryMappingsResponseHandlerTest, EmptyArrayGivesAnEmptyList)
{
    EXPECT_THAT(Map<CategoryMappingsResponseHandler>("[]"), IsEmpty());
}

TEST_F(CategoryMappingsResponseHandlerTest, PayloadThatIsNoArrayGivesAnEmptyListAlsoAfterAFullOne)
{
    CategoryMappingsResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")"}) {
        EXPECT_THAT(Map(handler, "[{}]"), SizeIs(1));
        EXPECT_THAT(Map(handler, data), IsEmpty()) << data;
    }
}

TEST_F(CategoryMappingsResponseHandlerTest, TenThousandMappingsKeepTheirOrder)
{
    QJsonArray data;
    for (int id = 0; id < 10000; ++id) {
        data.append(With(GoodObject(), "categoryId", id));
    }
    const auto mappings = Map<CategoryMappingsResponseHandler>(JsonText(data));
    ASSERT_THAT(mappings, SizeIs(10000));
    for (int id = 0; id < 10000; ++id) {
        ASSERT_EQ(mappings[static_cast<std::size_t>(id)]->CategoryId, id);
    }
}

TEST_F(CategoryMappingsResponseHandlerTest, NameThatIsOneTextGivesNoNames)
{
    EXPECT_THAT(MapOne(R"({"name":"风管"})").Names, IsEmpty());
}

TEST_F(CategoryMappingsResponseHandlerTest, NamesKeepTheirOrderAndAnEntryForWhatIsNoText)
{
    EXPECT_THAT(MapOne(R"({"name":["b",1,null,true,["x"],{"x":"y"},"","a","b"]})").Names,
        ElementsAre(L"b", L"", L"", L"", L"", L"", L"", L"a", L"b"));
}

TEST_F(CategoryMappingsResponseHandlerTest, MajorsZeroToTwoAreKept)
{
    EXPECT_EQ(MapOne(R"({"major":0})").Major, ICategoryMapping::Plumbing);
    EXPECT_EQ(MapOne(R"({"major":1})").Major, ICategoryMapping::Hvac);
    EXPECT_EQ(MapOne(R"({"major":2})").Major, ICategoryMapping::Electrical);
}

TEST_F(CategoryMappingsResponseHandlerTest, AnyOtherWholeMajorIsUnknown)
{
    for (const char* major : {"3", "-1", "-2", "100", "2147483647", "-2147483648"}) {
        EXPECT_EQ(MapOne(QByteArray("{\"major\":") + major + '}').Major, -1) << major;
    }
}

TEST_F(CategoryMappingsResponseHandlerTest, MajorThatIsNoWhole32BitNumberReadsAsZero)
{
    for (const char* major : {"1.5", "2147483648", "1e300", R"("1")", R"("2")", "true", "null", "[1]", "{}"}) {
        EXPECT_EQ(MapOne(QByteArray("{\"major\":") + major + '}').Major, 0) << major;
    }
}

TEST_F(CategoryMappingsResponseHandlerTest, MissingMajorIsZeroRatherThanUnknown)
{
    EXPECT_EQ(MapOne("{}").Major, 0);
}

TEST_F(CategoryMappingsResponseHandlerTest, MappingThatCannotBeMadeIsReportedAndSkipped)
{
    const auto mappings = MapWithoutMemory<CategoryMappingsResponseHandler, ICategoryMapping>(
        R"([{"categoryId":1},{"categoryId":2},{"categoryId":3}])", 2);
    ExpectWarning("CategoryMappingsResponseHandler", L"spCategoryMapping 为空");
    ASSERT_THAT(mappings, SizeIs(2));
    EXPECT_EQ(mappings[0]->CategoryId, 1);
    EXPECT_EQ(mappings[1]->CategoryId, 3);
}

class CategoryMappingsMemberTest : public HandlerFixture,
                                   public testing::WithParamInterface<MemberRow<ICategoryMapping>>
{
};

const std::vector<MemberRow<ICategoryMapping>>& Members()
{
    static const std::vector<MemberRow<ICategoryMapping>> rows{
        {"componentEditorCategoryId", {QJsonValue::String},
            [](ICategoryMapping& mapping) { mapping.ComponentEditorCategoryId.clear(); }},
        {"categoryId", {QJsonValue::Double}, [](ICategoryMapping& mapping) { mapping.CategoryId = 0; }},
        {"categoryCode", {QJsonValue::String}, [](ICategoryMapping& mapping) { mapping.CategoryCode.clear(); }},
        {"name", {QJsonValue::Array}, [](ICategoryMapping& mapping) { mapping.Names.clear(); }},
        {"major", {QJsonValue::Double}, [](ICategoryMapping& mapping) { mapping.Major = ICategoryMapping::Plumbing; }}};
    return rows;
}

INSTANTIATE_TEST_SUITE_P(, CategoryMappingsMemberTest, testing::ValuesIn(Members()), RowName());

TEST_P(CategoryMappingsMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodObject(), GoodMapping(), [this](const QJsonObject& object) {
        return Only(Map<CategoryMappingsResponseHandler>(JsonText(QJsonArray{object})));
    });
}

class CategoryMappingsNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, CategoryMappingsNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(CategoryMappingsNumberTest, IsReadWhenItIsAWhole32BitNumber)
{
    const auto mappings =
        Map<CategoryMappingsResponseHandler>(QByteArray("[{\"categoryId\":") + GetParam().json + "}]");
    ASSERT_THAT(mappings, SizeIs(1));
    EXPECT_EQ(mappings[0]->CategoryId, GetParam().value);
}

} // namespace
