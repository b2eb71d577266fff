#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"
#include "ResponseHandlers/SpecificationResponseHandler.h"
#include "ResponseHandlers/SpecificationsResponseHandler.h"
#include "TarnNuqService/ResponseHandlers/RandomJson.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using namespace testsupport;
using namespace tarnnuq;

/// Maps payloads without a reply around them.
template <typename Handler>
class Mapper : public Handler
{
public:
    auto Map(const QJsonObject& data)
    {
        this->HandleData(data);
        return this->m_result;
    }
};

/// Few letters, so that most names meet; lone surrogates among them.
QStringList NamePieces()
{
    return {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("A"), QStringLiteral("宽"), QStringLiteral("😀"),
        QString(QChar(0xD83D)), QString(QChar(0xFFFD))};
}

QStringList ValuePieces()
{
    return {QStringLiteral(" "), QStringLiteral("TRUE"), QStringLiteral("False"), QStringLiteral("\t"),
        QStringLiteral("Ä"), QStringLiteral("是"), QStringLiteral("1")};
}

QJsonArray RandomDefinitions(RandomJson& random)
{
    const QStringList types{QStringLiteral("Logic"), QStringLiteral("logic"), QStringLiteral("Number"),
        QStringLiteral("Logic "), QStringLiteral("Logic")};
    QJsonArray definitions;
    for (int count = random.Below(10); count > 0; --count) {
        QJsonObject definition{{QStringLiteral("code"), QString::number(count)},
            {QStringLiteral("valueType"), types.at(random.Below(types.size()))}};
        definition.insert(QStringLiteral("name"),
            random.Below(10) > 0 ? QJsonValue(random.Text(NamePieces(), 2)) : random.Value(NamePieces()));
        definitions.append(definition);
    }
    return definitions;
}

/// Values mostly in the order of the definitions, as the cloud sends them, with gaps, strangers and repetitions.
QJsonArray RandomValues(RandomJson& random, const QJsonArray& definitions)
{
    QJsonArray values;
    const auto append = [&values, &random](const QJsonValue& name) {
        QJsonObject element;
        element.insert(QStringLiteral("name"), name);
        element.insert(QStringLiteral("value"), random.Value(ValuePieces()));
        values.append(random.Below(20) > 0 ? QJsonValue(element) : random.Value(NamePieces()));
    };
    for (const QJsonValue& definition : definitions) {
        if (random.Below(4) > 0) {
            append(definition.toObject().value(QStringLiteral("name")));
        }
        if (random.Below(4) == 0) {
            append(random.Text(NamePieces(), 2));
        }
    }
    return values;
}

/// What a parameter has to be: by the last definition of its name and the last value that names it.
struct Expected
{
    std::wstring code;
    bool isYesNo = false;
    bool isGiven = false;
    std::wstring value;
};

using ExpectedParameters = std::map<std::wstring, Expected>;

ExpectedParameters PlainRule(const QJsonArray& definitions, const QJsonArray& values)
{
    const auto text = [](const QJsonValue& element, const char* key) {
        return element.toObject().value(QLatin1String(key)).toString();
    };
    ExpectedParameters parameters;
    for (const QJsonValue& definition : definitions) {
        parameters[text(definition, "name").toStdWString()] = {text(definition, "code").toStdWString(),
            text(definition, "valueType") == QLatin1String("Logic"), false, std::wstring()};
    }
    for (const QJsonValue& value : values) {
        const auto found = parameters.find(text(value, "name").toStdWString());
        if (found != parameters.end()) {
            const QString given = text(value, "value");
            found->second.value = (found->second.isYesNo ? given.trimmed().toLower() : given).toStdWString();
            found->second.isGiven = true;
        }
    }
    return parameters;
}

void ExpectParameters(const ISpecification& specification, const ExpectedParameters& expected)
{
    ASSERT_EQ(specification.Parameters.size(), expected.size());
    for (const auto& [name, parameter] : specification.Parameters) {
        const auto found = expected.find(name);
        ASSERT_NE(found, expected.end());
        ASSERT_EQ(parameter->Definition->Name, name);
        ASSERT_EQ(parameter->Definition->Code, found->second.code);
        ASSERT_EQ(parameter->Value, found->second.value);
        ASSERT_EQ(parameter->IsValueSpecified, found->second.isGiven);
    }
}

TEST(ParameterRulesTest, ValuesOfOneFamilyTypeFollowThePlainRule)
{
    RandomJson random;
    Mapper<SpecificationResponseHandler> mapper;
    for (int round = 0; round < RandomJson::Rounds && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        const QJsonArray definitions = RandomDefinitions(random);
        const QJsonArray values = RandomValues(random, definitions);
        const auto specification = mapper.Map({{QStringLiteral("parameters"), definitions},
            {QStringLiteral("familyType"), QJsonObject{{QStringLiteral("parameterValues"), values}}}});
        ExpectParameters(*specification, PlainRule(definitions, values));
    }
}

TEST(ParameterRulesTest, ValuesOfSeveralFamilyTypesFollowThePlainRuleEach)
{
    RandomJson random;
    Mapper<SpecificationsResponseHandler> mapper;
    for (int round = 0; round < RandomJson::Rounds / 4 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        const QJsonArray definitions = RandomDefinitions(random);
        QJsonArray familyTypes;
        std::vector<ExpectedParameters> expected;
        for (int count = random.Below(4); count > 0; --count) {
            const QJsonArray values = RandomValues(random, definitions);
            familyTypes.append(QJsonObject{{QStringLiteral("parameterValues"), values}});
            expected.push_back(PlainRule(definitions, values));
        }
        const auto specifications =
            mapper.Map({{QStringLiteral("parameters"), definitions}, {QStringLiteral("familyTypes"), familyTypes}});
        ASSERT_EQ(specifications.size(), expected.size());
        for (std::size_t index = 0; index < expected.size(); ++index) {
            ExpectParameters(*specifications[index], expected[index]);
        }
    }
}

TEST(ParameterRulesTest, AllowedValuesAreTheObjectsMembersByKey)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds; ++round) {
        QJsonObject members;
        for (int count = random.Below(8); count > 0; --count) {
            members.insert(random.Text(NamePieces(), 3), random.Value(ValuePieces()));
        }
        std::map<std::wstring, std::wstring> expected;
        const QStringList keys = members.keys();
        for (const QString& key : keys) {
            expected[key.toStdWString()] = members.value(key).toString().toStdWString();
        }
        IParameterDefinition definition;
        definition.Values[L"old"] = L"value";
        ReadParameterDefinition({{QStringLiteral("values"), members}}, definition);
        ASSERT_EQ(definition.Values, expected) << "round " << round;
    }
}

TEST(ParameterRulesTest, DefinitionReadAgainIsReplacedWhole)
{
    IParameterDefinition definition;
    ReadParameterDefinition({{QStringLiteral("name"), QStringLiteral("a")}, {QStringLiteral("isShared"), true},
                                {QStringLiteral("values"), QJsonObject{{QStringLiteral("1"), QStringLiteral("x")}}}},
        definition);
    ReadParameterDefinition({}, definition);
    EXPECT_EQ(definition.Name, L"");
    EXPECT_FALSE(definition.IsShared);
    EXPECT_TRUE(definition.Values.empty());
}

} // namespace
