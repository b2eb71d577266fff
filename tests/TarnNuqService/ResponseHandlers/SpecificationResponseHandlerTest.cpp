#include "ResponseHandlers/SpecificationResponseHandler.h"

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

constexpr const wchar_t* NotGiven = L"(not given)";

class SpecificationResponseHandlerTest : public MemoryFixture
{
protected:
    ISpecification MapSpecification(const QByteArray& data)
    {
        const auto specification = Map<SpecificationResponseHandler>(data);
        EXPECT_NE(specification, nullptr);
        return specification ? *specification : ISpecification();
    }

    /// What the three parameters are after these values.
    std::map<std::wstring, std::wstring> MapValues(const QByteArray& parameterValues)
    {
        return ValuesOf(
            MapSpecification("{\"parameters\":" + ThreeDefinitions() +
                             ",\"familyType\":{\"name\":\"DN100\",\"parameterValues\":" + parameterValues + "}}"));
    }

    std::wstring MapLogicValue(const QByteArray& value)
    {
        return MapValues("[{\"name\":\"安装\",\"value\":" + value + "}]")[L"安装"];
    }
};

TEST_F(SpecificationResponseHandlerTest, GoodReplyFillsEveryMember)
{
    const QJsonObject value{
        {QStringLiteral("name"), QStringLiteral("宽度")}, {QStringLiteral("value"), QStringLiteral(" 400 ")}};
    const QJsonObject familyType{
        {QStringLiteral("name"), QStringLiteral("DN100")}, {QStringLiteral("parameterValues"), QJsonArray{value}}};
    const auto specification =
        MapSpecification(JsonText(QJsonObject{{QStringLiteral("parameters"), QJsonArray{GoodDefinitionObject()}},
            {QStringLiteral("familyType"), familyType}}));

    ISpecification expected;
    expected.Name = L"DN100";
    const auto parameter = std::make_shared<IParameter>();
    parameter->Value = L" 400 ";
    parameter->SetIsValueSpecified(true);
    parameter->Definition = std::make_shared<IParameterDefinition>(GoodDefinition());
    expected.Parameters[L"宽度"] = parameter;
    EXPECT_EQ(Describe(specification), Describe(expected));
}

TEST_F(SpecificationResponseHandlerTest, EmptyOrOtherPayloadGivesNullAlsoAfterASpecification)
{
    SpecificationResponseHandler handler;
    for (const char* data : {"{}", "null", "true", "5", R"("text")", "[]", R"([{"familyType":{}}])"}) {
        EXPECT_NE(Map(handler, R"({"familyType":{}})"), nullptr);
        EXPECT_EQ(Map(handler, data), nullptr) << data;
    }
    EXPECT_THAT(host.debugMessages.Warnings(), IsEmpty());
}

TEST_F(SpecificationResponseHandlerTest, UnknownMembersAloneGiveAnEmptySpecification)
{
    EXPECT_EQ(Describe(MapSpecification(R"({"unknown":1,"name":"x"})")), Describe(ISpecification()));
}

TEST_F(SpecificationResponseHandlerTest, ParametersOfAnotherTypeAreNone)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        const QJsonObject data{
            {QStringLiteral("familyType"), QJsonObject{{QStringLiteral("name"), QStringLiteral("n")}}}};
        const auto specification = MapSpecification(JsonText(With(data, "parameters", shape.value)));
        EXPECT_THAT(specification.Parameters, IsEmpty()) << shape.name;
        EXPECT_EQ(specification.Name, L"n") << shape.name;
    }
}

TEST_F(SpecificationResponseHandlerTest, FamilyTypeOfAnotherTypeHasNoName)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Object})) {
        const QJsonObject data{{QStringLiteral("parameters"), QJsonArray{QJsonObject()}}};
        const auto specification = MapSpecification(JsonText(With(data, "familyType", shape.value)));
        EXPECT_EQ(specification.Name, L"") << shape.name;
        EXPECT_THAT(specification.Parameters, SizeIs(1)) << shape.name;
    }
}

TEST_F(SpecificationResponseHandlerTest, FamilyTypeNameOfAnotherTypeIsEmpty)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::String})) {
        const QJsonObject familyType = With(QJsonObject(), "name", shape.value);
        const QJsonObject data{{QStringLiteral("familyType"), familyType}};
        EXPECT_EQ(MapSpecification(JsonText(data)).Name, L"") << shape.name;
    }
}

TEST_F(SpecificationResponseHandlerTest, ParameterValuesOfAnotherTypeGiveNoValue)
{
    for (const JsonShape& shape : ShapesExcept({QJsonValue::Array})) {
        EXPECT_THAT(MapValues(shape.value.isUndefined() ? "null" : JsonText(shape.value)),
            ElementsAre(Pair(L"note", NotGiven), Pair(L"width", NotGiven), Pair(L"安装", NotGiven)))
            << shape.name;
    }
}

TEST_F(SpecificationResponseHandlerTest, ElementsOfParametersThatAreNoObjectsShareTheEmptyName)
{
    const auto specification = MapSpecification(R"({"parameters":[null,1,"x",[],{}]})");
    ASSERT_THAT(specification.Parameters, ElementsAre(Key(std::wstring())));
    const IParameter& parameter = *specification.Parameters.at(L"");
    ASSERT_NE(parameter.Definition, nullptr);
    EXPECT_EQ(Describe(parameter.Definition), Describe(IParameterDefinition()));
    EXPECT_FALSE(parameter.IsValueSpecified);
}

TEST_F(SpecificationResponseHandlerTest, OfTwoDefinitionsWithOneNameTheLaterIsKept)
{
    const auto specification =
        MapSpecification(R"({"parameters":[{"name":"a","code":"1"},{"name":"b"},{"name":"a","code":"3"}]})");
    ASSERT_THAT(specification.Parameters, SizeIs(2));
    EXPECT_EQ(specification.Parameters.at(L"a")->Definition->Code, L"3");
}

TEST_F(SpecificationResponseHandlerTest, ValuesThatAreNotNamedAreNotGiven)
{
    EXPECT_THAT(
        MapValues("[]"), ElementsAre(Pair(L"note", NotGiven), Pair(L"width", NotGiven), Pair(L"安装", NotGiven)));
}

TEST_F(SpecificationResponseHandlerTest, EmptyTextIsAValue)
{
    EXPECT_EQ(MapValues(R"([{"name":"width","value":""}])")[L"width"], L"");
}

TEST_F(SpecificationResponseHandlerTest, ValueThatIsNoTextIsGivenAsEmptyText)
{
    for (const char* value : {"400", "true", "null", "[]", "{}"}) {
        EXPECT_EQ(MapValues(QByteArray(R"([{"name":"width","value":)") + value + "}]")[L"width"], L"") << value;
    }
    EXPECT_EQ(MapValues(R"([{"name":"width"}])")[L"width"], L"");
}

TEST_F(SpecificationResponseHandlerTest, ValueWithoutDefinitionIsIgnoredAndAddsNothing)
{
    EXPECT_THAT(MapValues(R"([{"name":"Width","value":"1"},{"name":"width ","value":"2"},{"name":"","value":"3"},
                              {"name":5,"value":"4"},{"value":"5"},null,7,"width",[]])"),
        ElementsAre(Pair(L"note", NotGiven), Pair(L"width", NotGiven), Pair(L"安装", NotGiven)));
}

TEST_F(SpecificationResponseHandlerTest, ElementWithoutNameFillsTheParameterWithoutName)
{
    const auto specification =
        MapSpecification(R"({"parameters":[{}],"familyType":{"parameterValues":[{"value":"v"}]}})");
    EXPECT_THAT(ValuesOf(specification), ElementsAre(Pair(L"", L"v")));
}

TEST_F(SpecificationResponseHandlerTest, LaterValueOfOneNameWins)
{
    EXPECT_EQ(MapValues(R"([{"name":"width","value":"1"},{"name":"note","value":"n"},{"name":"width","value":"2"}])"),
        (std::map<std::wstring, std::wstring>{{L"note", L"n"}, {L"width", L"2"}, {L"安装", NotGiven}}));
}

TEST_F(SpecificationResponseHandlerTest, YesNoValueIsTrimmedAndLowerCased)
{
    EXPECT_EQ(MapLogicValue(R"(" TRUE ")"), L"true");
    EXPECT_EQ(MapLogicValue(R"("\t\r\nFaLsE\u3000")"), L"false");
    EXPECT_EQ(MapLogicValue(R"("   ")"), L"");
    EXPECT_EQ(MapLogicValue(R"(" 是 ÄÖ ")"), L"是 äö");
}

TEST_F(SpecificationResponseHandlerTest, AnyOtherValueIsUnchanged)
{
    EXPECT_EQ(MapValues(R"([{"name":"width","value":" TRUE "}])")[L"width"], L" TRUE ");
}

TEST_F(SpecificationResponseHandlerTest, YesNoTypeIsComparedExactly)
{
    for (const char* type : {"logic", "LOGIC", " Logic", "Logic ", "Logical", ""}) {
        const auto specification =
            MapSpecification(QByteArray(R"({"parameters":[{"name":"a","valueType":")") + type +
                             R"("}],"familyType":{"parameterValues":[{"name":"a","value":" YES "}]}})");
        EXPECT_THAT(ValuesOf(specification), ElementsAre(Pair(L"a", L" YES "))) << type;
    }
}

TEST_F(SpecificationResponseHandlerTest, TenThousandParametersGetTheirValues)
{
    QJsonArray definitions;
    QJsonArray values;
    for (int number = 0; number < 10000; ++number) {
        const QString name = QString::number(number);
        definitions.append(QJsonObject{{QStringLiteral("name"), name}});
        values.append(QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("value"), name + u'v'}});
    }
    const QJsonObject familyType{{QStringLiteral("parameterValues"), values}};
    const auto specification = MapSpecification(
        JsonText(QJsonObject{{QStringLiteral("parameters"), definitions}, {QStringLiteral("familyType"), familyType}}));
    ASSERT_THAT(specification.Parameters, SizeIs(10000));
    EXPECT_EQ(specification.Parameters.at(L"9999")->Value, L"9999v");
}

TEST_F(SpecificationResponseHandlerTest, SpecificationThatCannotBeMadeIsReportedAndNull)
{
    const auto specification =
        MapWithoutMemory<SpecificationResponseHandler, ISpecification>(R"({"familyType":{"name":"n"}})", 1);
    EXPECT_EQ(specification, nullptr);
    ExpectWarning("SpecificationResponseHandler", L"m_result 为空");
}

TEST_F(SpecificationResponseHandlerTest, DefinitionThatCannotBeMadeIsReportedAndSkipped)
{
    const auto specification = MapWithoutMemory<SpecificationResponseHandler, IParameterDefinition>(
        "{\"parameters\":" + ThreeDefinitions() + ",\"familyType\":{\"name\":\"n\"}}", 2);
    ExpectWarning("SpecificationResponseHandler", L"spParameterDefinition 为空");
    ASSERT_NE(specification, nullptr);
    EXPECT_EQ(specification->Name, L"n");
    EXPECT_THAT(specification->Parameters, ElementsAre(Key(std::wstring(L"note")), Key(std::wstring(L"width"))));
}

TEST_F(SpecificationResponseHandlerTest, ParameterThatCannotBeMadeIsReportedAndSkipped)
{
    const auto specification = MapWithoutMemory<SpecificationResponseHandler, IParameter>(
        "{\"parameters\":" + ThreeDefinitions() +
            R"(,"familyType":{"parameterValues":[{"name":"安装","value":"1"},{"name":"note","value":"2"}]}})",
        2);
    ExpectWarning("SpecificationResponseHandler", L"spParameter 为空");
    ASSERT_NE(specification, nullptr);
    EXPECT_THAT(ValuesOf(*specification), ElementsAre(Pair(L"note", L"2"), Pair(L"width", NotGiven)));
}

TEST_F(SpecificationResponseHandlerTest, ParameterThatCannotBeMadeLeavesAnEarlierOneOfItsName)
{
    const auto specification = MapWithoutMemory<SpecificationResponseHandler, IParameter>(
        R"({"parameters":[{"name":"a","code":"1"},{"name":"a","code":"2"}],
            "familyType":{"parameterValues":[{"name":"a","value":"v"}]}})",
        2);
    ExpectWarning("SpecificationResponseHandler", L"spParameter 为空");
    ASSERT_NE(specification, nullptr);
    ASSERT_THAT(ValuesOf(*specification), ElementsAre(Pair(L"a", L"v")));
    EXPECT_EQ(specification->Parameters.at(L"a")->Definition->Code, L"1");
}

class SpecificationDefinitionTest : public HandlerFixture,
                                    public testing::WithParamInterface<MemberRow<IParameterDefinition>>
{
};

INSTANTIATE_TEST_SUITE_P(, SpecificationDefinitionTest, testing::ValuesIn(DefinitionMembers()), RowName());

TEST_P(SpecificationDefinitionTest, MissingOrOfAnotherTypeIsItsDefault)
{
    ExpectDefaultForOtherTypes(GetParam(), GoodDefinitionObject(), GoodDefinition(), [this](const QJsonObject& object) {
        const QJsonObject data{{QStringLiteral("parameters"), QJsonArray{object}}};
        const auto specification = Map<SpecificationResponseHandler>(JsonText(data));
        return specification ? Only(specification->Parameters) : nullptr;
    });
}

} // namespace
