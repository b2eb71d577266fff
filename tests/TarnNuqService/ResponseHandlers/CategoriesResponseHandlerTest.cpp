#include "ResponseHandlers/CategoriesResponseHandler.h"

#include "Records/ICategory.h"
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

class CategoriesResponseHandlerTest : public MemoryFixture
{
protected:
    RecordList<ICategory> MapCategories(const QByteArray& data) { return Map<CategoriesResponseHandler>(data); }

    /// The leaf flags of categories given by code and parent code.
    std::vector<bool> Leaves(const std::vector<std::pair<QString, QString>>& codes)
    {
        QJsonArray data;
        for (const auto& [code, parentCode] : codes) {
            data.append(QJsonObject{{QStringLiteral("code"), code}, {QStringLiteral("parentCode"), parentCode}});
        }
        std::vector<bool> leaves;
        for (const auto& category : MapCategories(JsonText(data))) {
            leaves.push_back(category->IsLeaf);
        }
        return leaves;
    }
};

QJsonObject GoodObject()
{
    return {{QStringLiteral("id"), 1001}, {QStringLiteral("name"), QStringLiteral("风管")},
        {QStringLiteral("code"), QStringLiteral("10.01")}, {QStringLiteral("parentId"), 10},
        {QStringLiteral("parentCode"), QStringLiteral("10")}, {QStringLiteral("weight"), 2.25},
        {QStringLiteral("count"), 37}};
}

ICategory GoodCategory()
{
    ICategory category;
    category.Id = 1001;
    category.Name = L"风管";
    category.Code = L"10.01";
    category.ParentId = 10;
    category.ParentCode = L"10";
    category.Weight = 2.25;
    category.Count = 37;
    category.SetIsLeaf(true);
    return category;
}

TEST_F(CategoriesResponseHandlerTest, GoodCategoryFillsEveryMember)
{
    const auto categories = MapCategories(JsonText(QJsonArray{GoodObject()}));
    ASSERT_THAT(categories, SizeIs(1));
    EXPECT_EQ(Describe(categories[0]), Describe(GoodCategory()));
}

TEST_F(CategoriesResponseHandlerTest, MembersOfTheLocalTreeAreNotRead)
{
    QJsonObject object = GoodObject();
    for (const char* key : {"idText", "IdText", "parentIdText", "namePath", "NamePath", "isLeaf", "Name", "ID"}) {
        object = With(object, key, QStringLiteral("x"));
    }
    const auto categories = MapCategories(JsonText(QJsonArray{object}));
    ASSERT_THAT(categories, SizeIs(1));
    EXPECT_EQ(Describe(categories[0]), Describe(GoodCategory()));
}

TEST_F(CategoriesResponseHandlerTest, ElementThatIsNoObjectGivesDefaults)
{
    const auto categories = MapCategories(R"([{}, null, true, 5, "text", [{"id":1}]])");
    ASSERT_THAT(categories, SizeIs(6));
    for (const auto& category : categories) {
        EXPECT_EQ(Describe(category), Describe(ICategory()));
    }
}

TEST_F(CategoriesResponseHandlerTest, EmptyArrayGivesAnEmptyList)
{
    EXPECT_THAT(MapCategories("[]"), IsEmpty());
}

TEST_F(CategoriesResponseHandlerTest, PayloadThatIsNoArrayGivesAnEmptyListAlsoAfterAFullOne)
{
    CategoriesResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", R"({"0":{"id":1}})"}) {
        EXPECT_THAT(Map(handler, R"([{"id":1}])"), SizeIs(1));
        EXPECT_THAT(Map(handler, data), IsEmpty()) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(CategoriesResponseHandlerTest, SecondListReplacesTheFirst)
{
    CategoriesResponseHandler handler;
    const auto first = Map(handler, R"([{"id":1},{"id":2}])");
    const auto second = Map(handler, R"([{"id":3}])");
    ASSERT_THAT(first, SizeIs(2));
    EXPECT_EQ(first[0]->Id, 1);
    ASSERT_THAT(second, SizeIs(1));
    EXPECT_EQ(second[0]->Id, 3);
}

TEST_F(CategoriesResponseHandlerTest, TenThousandCategoriesKeepTheirOrder)
{
    QJsonArray data;
    for (int id = 0; id < 10000; ++id) {
        data.append(QJsonObject{{QStringLiteral("id"), id}, {QStringLiteral("code"), QString::number(id)},
            {QStringLiteral("parentCode"), QString::number(id / 10)}});
    }
    const auto categories = MapCategories(JsonText(data));
    ASSERT_THAT(categories, SizeIs(10000));
    for (int id = 0; id < 10000; ++id) {
        const ICategory& category = *categories[static_cast<std::size_t>(id)];
        ASSERT_EQ(category.Id, id);
        ASSERT_EQ(category.IsLeaf, id >= 1000) << id;
    }
}

TEST_F(CategoriesResponseHandlerTest, TextArrivesUnchanged)
{
    const auto categories = MapCategories(R"([{"name":" 风管 \u0000\ud83d\ude00\n","code":"\"\\"}])");
    ASSERT_THAT(categories, SizeIs(1));
    EXPECT_EQ(categories[0]->Name, std::wstring(L" 风管 \0😀\n", sizeof(wchar_t) == 4 ? 7 : 8));
    EXPECT_EQ(categories[0]->Code, L"\"\\");
}

TEST_F(CategoriesResponseHandlerTest, LoneSurrogatesAreHarmless)
{
    const QString lone[] = {QString(QChar(0xD800)), QString(QChar(0xDC00)) + u'x'};
    const auto categories = MapCategories(R"([{"name":"\ud800"},{"name":"\udc00x"}])");
    ASSERT_THAT(categories, SizeIs(2));
    EXPECT_EQ(categories[0]->Name, lone[0].toStdWString());
    EXPECT_EQ(categories[1]->Name, lone[1].toStdWString());
    EXPECT_EQ(categories[0]->Name.size(), 1u);
    EXPECT_EQ(categories[1]->Name.size(), 2u);
}

TEST_F(CategoriesResponseHandlerTest, LastOfTwoMembersWithOneKeyCounts)
{
    const auto categories = MapCategories(R"([{"id":1,"id":2}])");
    ASSERT_THAT(categories, SizeIs(1));
    EXPECT_EQ(categories[0]->Id, 2);
}

TEST_F(CategoriesResponseHandlerTest, WeightKeepsEveryNumber)
{
    const auto categories = MapCategories(
        R"([{"weight":0.1},{"weight":-1.7976931348623157e308},{"weight":9007199254740993},{"weight":3}])");
    ASSERT_THAT(categories, SizeIs(4));
    EXPECT_EQ(categories[0]->Weight, 0.1);
    EXPECT_EQ(categories[1]->Weight, -1.7976931348623157e308);
    EXPECT_EQ(categories[2]->Weight, 9007199254740992.0);
    EXPECT_EQ(categories[3]->Weight, 3.0);
}

TEST_F(CategoriesResponseHandlerTest, ParentIsNoLeafAndItsChildIsOne)
{
    EXPECT_THAT(Leaves({{"10", ""}, {"1001", "10"}}), ElementsAre(false, true));
    EXPECT_THAT(Leaves({{"1001", "10"}, {"10", ""}}), ElementsAre(true, false));
}

TEST_F(CategoriesResponseHandlerTest, CategoryThatNamesItselfAsParentIsNoLeaf)
{
    EXPECT_THAT(Leaves({{"10", "10"}}), ElementsAre(false));
}

TEST_F(CategoriesResponseHandlerTest, CodesAreComparedExactly)
{
    EXPECT_THAT(Leaves({{"a", "-"}, {"b", "A"}, {"c", "a "}, {"d", " a"}}), ElementsAre(true, true, true, true));
}

TEST_F(CategoriesResponseHandlerTest, EmptyCodeIsTheParentOfEveryTopCategory)
{
    EXPECT_THAT(Leaves({{"", "x"}, {"1", ""}}), ElementsAre(false, true));
    EXPECT_THAT(Leaves({{"", "x"}, {"1", "x"}}), ElementsAre(true, true));
}

TEST_F(CategoriesResponseHandlerTest, CycleHasNoLeaf)
{
    EXPECT_THAT(Leaves({{"a", "b"}, {"b", "c"}, {"c", "a"}}), ElementsAre(false, false, false));
}

TEST_F(CategoriesResponseHandlerTest, CategoriesOfOneCodeAreMarkedAlike)
{
    EXPECT_THAT(Leaves({{"a", "-"}, {"a", "-"}, {"b", "a"}}), ElementsAre(false, false, true));
}

TEST_F(CategoriesResponseHandlerTest, CategoryThatCannotBeMadeIsReportedAndSkipped)
{
    const auto categories = MapWithoutMemory<CategoriesResponseHandler, ICategory>(
        R"([{"id":1,"code":"a"},{"id":2,"parentCode":"a"},{"id":3,"code":"c","parentCode":"c"}])", 2);
    ExpectWarning("CategoriesResponseHandler", L"spCategory 为空");
    ASSERT_THAT(categories, SizeIs(2));
    EXPECT_EQ(categories[0]->Id, 1);
    EXPECT_TRUE(categories[0]->IsLeaf) << "its child is not in the list";
    EXPECT_EQ(categories[1]->Id, 3);
    EXPECT_FALSE(categories[1]->IsLeaf) << "the leaves are marked all the same";
}

class CategoriesMemberTest : public HandlerFixture, public testing::WithParamInterface<MemberRow<ICategory>>
{
};

const std::vector<MemberRow<ICategory>>& Members()
{
    static const std::vector<MemberRow<ICategory>> rows{
        {"id", {QJsonValue::Double}, [](ICategory& category) { category.Id = 0; }},
        {"name", {QJsonValue::String}, [](ICategory& category) { category.Name.clear(); }},
        {"code", {QJsonValue::String}, [](ICategory& category) { category.Code.clear(); }},
        {"parentId", {QJsonValue::Double}, [](ICategory& category) { category.ParentId = 0; }},
        {"parentCode", {QJsonValue::String}, [](ICategory& category) { category.ParentCode.clear(); }},
        {"weight", {QJsonValue::Double}, [](ICategory& category) { category.Weight = 0.0; }},
        {"count", {QJsonValue::Double}, [](ICategory& category) { category.Count = 0; }}};
    return rows;
}

INSTANTIATE_TEST_SUITE_P(, CategoriesMemberTest, testing::ValuesIn(Members()), RowName());

TEST_P(CategoriesMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodObject(), GoodCategory(), [this](const QJsonObject& object) {
        return Only(Map<CategoriesResponseHandler>(JsonText(QJsonArray{object})));
    });
}

class CategoriesNumberTest : public HandlerFixture, public testing::WithParamInterface<NumberRow>
{
};

INSTANTIATE_TEST_SUITE_P(, CategoriesNumberTest, testing::ValuesIn(NumberRows()), RowName());

TEST_P(CategoriesNumberTest, IsReadWhenItIsAWhole32BitNumber)
{
    const QByteArray number = GetParam().json;
    const auto categories = Map<CategoriesResponseHandler>(
        "[{\"id\":" + number + ",\"parentId\":" + number + ",\"count\":" + number + "}]");
    ASSERT_THAT(categories, SizeIs(1));
    EXPECT_EQ(categories[0]->Id, GetParam().value);
    EXPECT_EQ(categories[0]->ParentId, GetParam().value);
    EXPECT_EQ(categories[0]->Count, GetParam().value);
}

} // namespace
