#include "ResponseHandlers/CategoryPropertyResponseHandler.h"

#include "Records/ICategoryProperty.h"
#include "Records/IParameterDefinition.h"
#include "TarnNuqService/ResponseHandlers/DefinitionSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;
using testing::SizeIs;

class CategoryPropertyResponseHandlerTest : public MemoryFixture
{
protected:
    ICategoryProperty MapProperty(const QByteArray& data)
    {
        const auto property = Map<CategoryPropertyResponseHandler>(data);
        EXPECT_NE(property, nullptr);
        return property ? *property : ICategoryProperty();
    }

    std::wstring MapCategoryId(const QByteArray& value)
    {
        return MapProperty("{\"categoryId\":" + value + '}').CategoryId;
    }
};

QJsonObject GoodObject()
{
    return {{QStringLiteral("categoryId"), QStringLiteral("A12")},
        {QStringLiteral("categoryName"), QStringLiteral("风管")},
        {QStringLiteral("propertyList"), QJsonArray{GoodDefinitionObject()}}};
}

ICategoryProperty GoodProperty()
{
    ICategoryProperty property;
    property.CategoryId = L"A12";
    property.CategoryName = L"风管";
    property.ParameterDefinitions[L"宽度"] = std::make_shared<IParameterDefinition>(GoodDefinition());
    return property;
}

TEST_F(CategoryPropertyResponseHandlerTest, GoodReplyFillsEveryMember)
{
    EXPECT_EQ(Describe(MapProperty(JsonText(GoodObject()))), Describe(GoodProperty()));
}

TEST_F(CategoryPropertyResponseHandlerTest, EmptyOrOtherPayloadGivesNullAlsoAfterAProperty)
{
    CategoryPropertyResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"categoryId":1}])"}) {
        EXPECT_NE(Map(handler, R"({"categoryId":1})"), nullptr);
        EXPECT_EQ(Map(handler, data), nullptr) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(CategoryPropertyResponseHandlerTest, IdAloneGivesAPropertyWithoutDefinitions)
{
    ICategoryProperty expected;
    expected.CategoryId = L"12";
    EXPECT_EQ(Describe(MapProperty(R"({"categoryId":12})")), Describe(expected));
}

TEST_F(CategoryPropertyResponseHandlerTest, ObjectWithUnknownMembersAloneGivesDefaults)
{
    EXPECT_EQ(Describe(MapProperty(R"({"unknown":1})")), Describe(ICategoryProperty()));
}

TEST_F(CategoryPropertyResponseHandlerTest, NumericIdIsWrittenWithoutDecimals)
{
    EXPECT_EQ(MapCategoryId("1234"), L"1234");
    EXPECT_EQ(MapCategoryId("-7"), L"-7");
    EXPECT_EQ(MapCategoryId("0"), L"0");
    EXPECT_EQ(MapCategoryId("12345678901"), L"12345678901");
    EXPECT_EQ(MapCategoryId("1.5"), QString::number(1.5, 'f', 0).toStdWString());
    EXPECT_EQ(MapCategoryId("2.6"), L"3");
    EXPECT_EQ(MapCategoryId("1e22"), L"10000000000000000000000");
}

TEST_F(CategoryPropertyResponseHandlerTest, TextIdIsKeptAsItIs)
{
    EXPECT_EQ(MapCategoryId(R"("A12")"), L"A12");
    EXPECT_EQ(MapCategoryId(R"(" 0012.50 ")"), L" 0012.50 ");
}

TEST_F(CategoryPropertyResponseHandlerTest, OfTwoDefinitionsWithOneNameTheSecondIsKept)
{
    const auto property =
        MapProperty(R"({"propertyList":[{"name":"a","code":"1"},{"name":"b","code":"2"},{"name":"a","code":"3"}]})");
    ASSERT_THAT(property.ParameterDefinitions, ElementsAre(Key(std::wstring(L"a")), Key(std::wstring(L"b"))));
    EXPECT_EQ(property.ParameterDefinitions.at(L"a")->Code, L"3");
}

TEST_F(CategoryPropertyResponseHandlerTest, ElementThatIsNoObjectIsADefinitionWithoutName)
{
    for (const char* element : {"{}", "null", "5", R"("text")", "[1]"}) {
        const auto property = MapProperty(QByteArray("{\"propertyList\":[") + element + "]}");
        ASSERT_THAT(property.ParameterDefinitions, ElementsAre(Key(std::wstring()))) << element;
        EXPECT_EQ(Describe(property.ParameterDefinitions.at(L"")), Describe(IParameterDefinition())) << element;
    }
}

TEST_F(CategoryPropertyResponseHandlerTest, EmptyListGivesNoDefinitions)
{
    EXPECT_THAT(MapProperty(R"({"propertyList":[]})").ParameterDefinitions, IsEmpty());
}

TEST_F(CategoryPropertyResponseHandlerTest, TenThousandDefinitionsAreAllThere)
{
    QJsonArray list;
    for (int number = 0; number < 10000; ++number) {
        list.append(QJsonObject{
            {QStringLiteral("name"), QString::number(number)}, {QStringLiteral("code"), QString::number(number * 2)}});
    }
    const auto property = MapProperty(JsonText(QJsonObject{{QStringLiteral("propertyList"), list}}));
    ASSERT_THAT(property.ParameterDefinitions, SizeIs(10000));
    EXPECT_EQ(property.ParameterDefinitions.at(L"9999")->Code, L"19998");
}

TEST_F(CategoryPropertyResponseHandlerTest, NumericIdOfADefinitionIsEmpty)
{
    const auto property = MapProperty(R"({"propertyList":[{"name":"a","id":17}]})");
    ASSERT_THAT(property.ParameterDefinitions, SizeIs(1));
    EXPECT_EQ(property.ParameterDefinitions.at(L"a")->Id, L"");
}

TEST_F(CategoryPropertyResponseHandlerTest, ValuesAreOrderedByKeyAndWhatIsNoTextIsEmpty)
{
    const auto property =
        MapProperty(R"({"propertyList":[{"name":"a","values":{"b":"B","a":"A","d":4,"c":null,"":"none","a":"A2"}}]})");
    ASSERT_THAT(property.ParameterDefinitions, SizeIs(1));
    EXPECT_THAT(property.ParameterDefinitions.at(L"a")->Values,
        ElementsAre(Pair(L"", L"none"), Pair(L"a", L"A2"), Pair(L"b", L"B"), Pair(L"c", L""), Pair(L"d", L"")));
}

TEST_F(CategoryPropertyResponseHandlerTest, TypeTextsAreStoredAsReceived)
{
    const auto property = MapProperty(
        R"({"propertyList":[{"name":"a","valueType":" logic ","parameterType":"DOUBLE","parameterDisplayType":"?"}]})");
    ASSERT_THAT(property.ParameterDefinitions, SizeIs(1));
    const IParameterDefinition& definition = *property.ParameterDefinitions.at(L"a");
    EXPECT_EQ(definition.ValueType, L" logic ");
    EXPECT_EQ(definition.ParameterType, L"DOUBLE");
    EXPECT_EQ(definition.ParameterDisplayType, L"?");
}

TEST_F(CategoryPropertyResponseHandlerTest, PropertyThatCannotBeMadeIsReportedAndNull)
{
    const auto property =
        MapWithoutMemory<CategoryPropertyResponseHandler, ICategoryProperty>(R"({"categoryId":1})", 1);
    EXPECT_EQ(property, nullptr);
    ExpectWarning("CategoryPropertyResponseHandler", L"m_result 为空");
}

TEST_F(CategoryPropertyResponseHandlerTest, DefinitionThatCannotBeMadeIsReportedAndSkipped)
{
    const auto property = MapWithoutMemory<CategoryPropertyResponseHandler, IParameterDefinition>(
        R"({"categoryId":1,"propertyList":[{"name":"a"},{"name":"b"},{"name":"c"}]})", 2);
    ExpectWarning("CategoryPropertyResponseHandler", L"spParameterDefinition 为空");
    ASSERT_NE(property, nullptr);
    EXPECT_THAT(property->ParameterDefinitions, ElementsAre(Key(std::wstring(L"a")), Key(std::wstring(L"c"))));
}

class CategoryPropertyMemberTest : public HandlerFixture,
                                   public testing::WithParamInterface<MemberRow<ICategoryProperty>>
{
};

const std::vector<MemberRow<ICategoryProperty>>& Members()
{
    static const std::vector<MemberRow<ICategoryProperty>> rows{
        {"categoryId", {QJsonValue::String, QJsonValue::Double},
            [](ICategoryProperty& property) { property.CategoryId.clear(); }},
        {"categoryName", {QJsonValue::String}, [](ICategoryProperty& property) { property.CategoryName.clear(); }},
        {"propertyList", {QJsonValue::Array},
            [](ICategoryProperty& property) { property.ParameterDefinitions.clear(); }}};
    return rows;
}

INSTANTIATE_TEST_SUITE_P(, CategoryPropertyMemberTest, testing::ValuesIn(Members()), RowName());

TEST_P(CategoryPropertyMemberTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodObject(), GoodProperty(),
        [this](const QJsonObject& object) { return Map<CategoryPropertyResponseHandler>(JsonText(object)); });
}

class CategoryPropertyDefinitionTest : public HandlerFixture,
                                       public testing::WithParamInterface<MemberRow<IParameterDefinition>>
{
};

INSTANTIATE_TEST_SUITE_P(, CategoryPropertyDefinitionTest, testing::ValuesIn(DefinitionMembers()), RowName());

TEST_P(CategoryPropertyDefinitionTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodDefinitionObject(), GoodDefinition(), [this](const QJsonObject& object) {
        const QJsonObject data{{QStringLiteral("propertyList"), QJsonArray{object}}};
        const auto property = Map<CategoryPropertyResponseHandler>(JsonText(data));
        return property ? Only(property->ParameterDefinitions) : nullptr;
    });
}

TEST_P(CategoryPropertyDefinitionTest, IsReadFromItsOwnKeyAlone)
{
    const QJsonArray list{
        With(QJsonObject(), GetParam().name, GoodDefinitionObject().value(QLatin1String(GetParam().name)))};
    const auto property =
        Map<CategoryPropertyResponseHandler>(JsonText(QJsonObject{{QStringLiteral("propertyList"), list}}));
    ASSERT_NE(property, nullptr);
    ASSERT_THAT(property->ParameterDefinitions, SizeIs(1));
    IParameterDefinition rest = *property->ParameterDefinitions.begin()->second;
    EXPECT_NE(Describe(rest), Describe(IParameterDefinition()));
    GetParam().reset(rest);
    EXPECT_EQ(Describe(rest), Describe(IParameterDefinition()));
}

} // namespace
