#include "ResponseHandlers/SpecificationsResponseHandler.h"

#include "TarnNuqService/ResponseHandlers/DefinitionSample.h"
#include "TarnNuqService/ResponseHandlers/MemberCheck.h"
#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "TarnNuqService/ResponseHandlers/SpecificationSample.h"
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

class SpecificationsResponseHandlerTest : public MemoryFixture
{
protected:
    RecordList<ISpecification> MapSpecifications(const QByteArray& data)
    {
        return Map<SpecificationsResponseHandler>(data);
    }

    /// A reply with the three definitions and these family types.
    static QByteArray Reply(const QByteArray& familyTypes)
    {
        return "{\"parameters\":" + ThreeDefinitions() + ",\"familyTypes\":" + familyTypes + '}';
    }
};

/// Two family types that give values of their own.
QByteArray TwoFamilyTypes()
{
    return R"([{"name":"DN100","parameterValues":[{"name":"width","value":" 1 "},{"name":"安装","value":" TRUE "}]},
               {"name":"DN200","parameterValues":[{"name":"width","value":"2"},{"name":"other","value":"x"}]}])";
}

TEST_F(SpecificationsResponseHandlerTest, FamilyTypesKeepTheirOrderAndTheirOwnValues)
{
    const auto specifications = MapSpecifications(Reply(TwoFamilyTypes()));
    ASSERT_THAT(specifications, SizeIs(2));
    EXPECT_EQ(specifications[0]->Name, L"DN100");
    EXPECT_THAT(ValuesOf(*specifications[0]),
        ElementsAre(Pair(L"note", L"(not given)"), Pair(L"width", L" 1 "), Pair(L"安装", L"true")));
    EXPECT_EQ(specifications[1]->Name, L"DN200");
    EXPECT_THAT(ValuesOf(*specifications[1]),
        ElementsAre(Pair(L"note", L"(not given)"), Pair(L"width", L"2"), Pair(L"安装", L"(not given)")));
}

TEST_F(SpecificationsResponseHandlerTest, DefinitionsAreSharedAndParametersAreNot)
{
    const auto specifications = MapSpecifications(Reply(TwoFamilyTypes()));
    ASSERT_THAT(specifications, SizeIs(2));
    for (const wchar_t* name : {L"note", L"width", L"安装"}) {
        const auto first = specifications[0]->Parameters.at(name);
        const auto second = specifications[1]->Parameters.at(name);
        EXPECT_NE(first, second);
        ASSERT_NE(first->Definition, nullptr);
        EXPECT_EQ(first->Definition, second->Definition);
    }
    specifications[0]->Parameters.at(L"width")->Definition->Unit = L"changed";
    EXPECT_EQ(specifications[1]->Parameters.at(L"width")->Definition->Unit, L"changed");
}

TEST_F(SpecificationsResponseHandlerTest, OfTwoDefinitionsWithOneNameTheLaterIsKept)
{
    const auto specifications =
        MapSpecifications(R"({"parameters":[{"name":"a","code":"1"},{"name":"a","code":"2"}],"familyTypes":[{},{}]})");
    ASSERT_THAT(specifications, SizeIs(2));
    for (const auto& specification : specifications) {
        ASSERT_THAT(specification->Parameters, SizeIs(1));
        EXPECT_EQ(specification->Parameters.at(L"a")->Definition->Code, L"2");
    }
}

TEST_F(SpecificationsResponseHandlerTest, EmptyOrOtherPayloadGivesAnEmptyListAlsoAfterAFullOne)
{
    SpecificationsResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"familyTypes":[{}]}])"}) {
        EXPECT_THAT(Map(handler, R"({"familyTypes":[{}]})"), SizeIs(1));
        EXPECT_THAT(Map(handler, data), IsEmpty()) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(SpecificationsResponseHandlerTest, WithoutFamilyTypesTheListIsEmptyAlsoWithParameters)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        const QJsonObject data{{QStringLiteral("parameters"), QJsonArray{GoodDefinitionObject()}}};
        EXPECT_THAT(MapSpecifications(JsonText(With(data, "familyTypes", shape.value))), IsEmpty()) << shape.name;
    }
    EXPECT_THAT(MapSpecifications(Reply("[]")), IsEmpty());
}

TEST_F(SpecificationsResponseHandlerTest, WithoutParametersTheValuesChangeNothing)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        const QJsonObject value{
            {QStringLiteral("name"), QStringLiteral("a")}, {QStringLiteral("value"), QStringLiteral("1")}};
        const QJsonObject familyType{
            {QStringLiteral("name"), QStringLiteral("n")}, {QStringLiteral("parameterValues"), QJsonArray{value}}};
        const QJsonObject data{{QStringLiteral("familyTypes"), QJsonArray{familyType}}};
        const auto specifications = MapSpecifications(JsonText(With(data, "parameters", shape.value)));
        ASSERT_THAT(specifications, SizeIs(1)) << shape.name;
        EXPECT_EQ(specifications[0]->Name, L"n");
        EXPECT_THAT(specifications[0]->Parameters, IsEmpty()) << shape.name;
    }
}

TEST_F(SpecificationsResponseHandlerTest, FamilyTypeThatIsNoObjectHasParametersWithoutValues)
{
    const auto specifications = MapSpecifications(Reply(R"([{},null,true,5,"text",[1]])"));
    ASSERT_THAT(specifications, SizeIs(6));
    for (const auto& specification : specifications) {
        EXPECT_EQ(specification->Name, L"");
        EXPECT_THAT(ValuesOf(*specification),
            ElementsAre(Pair(L"note", L"(not given)"), Pair(L"width", L"(not given)"), Pair(L"安装", L"(not given)")));
    }
}

TEST_F(SpecificationsResponseHandlerTest, NameAndValuesOfAnotherTypeAreDefaults)
{
    const auto names = MapSpecifications(Reply(R"([{"name":1},{"name":null},{"name":["x"]}])"));
    ASSERT_THAT(names, SizeIs(3));
    const auto values = MapSpecifications(Reply(R"([{"parameterValues":{"name":"width","value":"1"}}])"));
    ASSERT_THAT(values, SizeIs(1));
    for (const auto& specification : {names[0], names[1], names[2], values[0]}) {
        EXPECT_EQ(specification->Name, L"");
        EXPECT_FALSE(specification->Parameters.at(L"width")->IsValueSpecified);
    }
}

TEST_F(SpecificationsResponseHandlerTest, TenThousandFamilyTypesKeepTheirOrder)
{
    QJsonArray familyTypes;
    for (int number = 0; number < 10000; ++number) {
        familyTypes.append(QJsonObject{{QStringLiteral("name"), QString::number(number)}});
    }
    const auto specifications = MapSpecifications(Reply(JsonText(familyTypes)));
    ASSERT_THAT(specifications, SizeIs(10000));
    for (std::size_t number = 0; number < 10000; ++number) {
        ASSERT_EQ(specifications[number]->Name, std::to_wstring(number));
    }
    EXPECT_EQ(specifications.back()->Parameters.at(L"width")->Definition,
        specifications.front()->Parameters.at(L"width")->Definition);
}

TEST_F(SpecificationsResponseHandlerTest, DefinitionThatCannotBeMadeIsReportedOnceAndLeftOut)
{
    const auto specifications =
        MapWithoutMemory<SpecificationsResponseHandler, IParameterDefinition>(Reply(TwoFamilyTypes()), 1);
    ExpectWarning("SpecificationsResponseHandler", L"spParameterDefinition 为空");
    ASSERT_THAT(specifications, SizeIs(2));
    for (const auto& specification : specifications) {
        EXPECT_THAT(specification->Parameters, ElementsAre(Key(std::wstring(L"note")), Key(std::wstring(L"安装"))));
    }
}

TEST_F(SpecificationsResponseHandlerTest, SpecificationThatCannotBeMadeIsReportedAndSkipped)
{
    const auto specifications = MapWithoutMemory<SpecificationsResponseHandler, ISpecification>(
        Reply(R"([{"name":"1"},{"name":"2"},{"name":"3"}])"), 2);
    ExpectWarning("SpecificationsResponseHandler", L"spSpecification 为空");
    ASSERT_THAT(specifications, SizeIs(2));
    EXPECT_EQ(specifications[0]->Name, L"1");
    EXPECT_EQ(specifications[1]->Name, L"3");
}

TEST_F(SpecificationsResponseHandlerTest, ParameterThatCannotBeMadeIsReportedAndMissingInItsSpecificationAlone)
{
    const auto specifications = MapWithoutMemory<SpecificationsResponseHandler, IParameter>(Reply(TwoFamilyTypes()), 4);
    ExpectWarning("SpecificationsResponseHandler", L"spParameter 为空");
    ASSERT_THAT(specifications, SizeIs(2));
    EXPECT_THAT(specifications[0]->Parameters, SizeIs(3));
    EXPECT_THAT(specifications[1]->Parameters, ElementsAre(Key(std::wstring(L"note")), Key(std::wstring(L"安装"))));
}

TEST_F(SpecificationsResponseHandlerTest, ParameterThatCannotBeMadeLeavesAnEarlierOneOfItsName)
{
    const auto specifications = MapWithoutMemory<SpecificationsResponseHandler, IParameter>(
        R"({"parameters":[{"name":"a","code":"1"},{"name":"a","code":"2"}],
            "familyTypes":[{"parameterValues":[{"name":"a","value":"v"}]}]})",
        2);
    ExpectWarning("SpecificationsResponseHandler", L"spParameter 为空");
    ASSERT_THAT(specifications, SizeIs(1));
    ASSERT_THAT(ValuesOf(*specifications[0]), ElementsAre(Pair(L"a", L"v")));
    EXPECT_EQ(specifications[0]->Parameters.at(L"a")->Definition->Code, L"1");
}

class SpecificationsDefinitionTest : public HandlerFixture,
                                     public testing::WithParamInterface<MemberRow<IParameterDefinition>>
{
};

INSTANTIATE_TEST_SUITE_P(, SpecificationsDefinitionTest, testing::ValuesIn(DefinitionMembers()), RowName());

TEST_P(SpecificationsDefinitionTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodDefinitionObject(), GoodDefinition(), [this](const QJsonObject& object) {
        const QJsonObject data{{QStringLiteral("parameters"), QJsonArray{object}},
            {QStringLiteral("familyTypes"), QJsonArray{QJsonObject()}}};
        const auto specification = Only(Map<SpecificationsResponseHandler>(JsonText(data)));
        return specification ? Only(specification->Parameters) : nullptr;
    });
}

} // namespace
