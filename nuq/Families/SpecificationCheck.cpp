#include "Families/SpecificationCheck.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyDocument.h"
#include "FamilyFiles/Manifest/TypeTable.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"

#include <map>

namespace nuq {

using familyfiles::ParameterDefinition;
using familyfiles::Reason;
using familyfiles::StorageType;
using familyfiles::Value;

namespace {

std::string Narrow(const std::wstring& text)
{
    return QString::fromStdWString(text).toStdString();
}

std::string Visible(const std::string& utf8)
{
    return VisibleText(QString::fromStdString(utf8));
}

Reason UnknownParameter(const std::string& name)
{
    return {"value.unknown-parameter", name, "The family has no such parameter; the value is left out.",
        "该族没有这个参数，其值被忽略。"};
}

Reason NoNumber(const std::string& name)
{
    return {"value.no-number", name, "The text is no such number and counts as 0.", "该文本不是数值，按 0 处理。"};
}

/// The value that the library makes of a text; nothing when it is not a number where one is wanted.
std::optional<Value> ValueOf(const std::wstring& wide, StorageType storageType)
{
    const QString text = QString::fromStdWString(wide);
    bool isNumber = true;
    Value value;
    switch (storageType) {
    case StorageType::YesNo: {
        const QString word = text.trimmed().toLower();
        value = word == QLatin1String("true") || word.toInt() != 0;
        break;
    }
    case StorageType::Integer:
        value = text.toInt(&isNumber);
        break;
    case StorageType::FloatingPoint:
        value = text.toDouble(&isNumber);
        break;
    case StorageType::Text:
        value = text.toStdString();
        break;
    }
    return isNumber ? std::optional<Value>(std::move(value)) : std::nullopt;
}

Reason FaultOf(const ParameterDefinition& definition, const std::wstring& text)
{
    Reason reason;
    if (definition.IsDriven())
        return reason;
    const std::optional<Value> value = ValueOf(text, definition.storageType);
    if (!value)
        return NoNumber(definition.name);
    familyfiles::IsPossible(definition, *value, reason);
    return reason;
}

/// Indexes of the family's parameters by their ids.
using Indexes = std::map<std::string, std::size_t>;

Indexes IndexById(const familyfiles::FamilyManifest& manifest)
{
    Indexes indexes;
    for (std::size_t index = 0; index < manifest.parameters.size(); ++index)
        indexes.emplace(manifest.parameters[index].id, index);
    return indexes;
}

WantedValue WantedValueOf(const std::wstring& name, const tarnnuq::IParameter& parameter)
{
    WantedValue value;
    value.id = parameter.Definition ? Narrow(parameter.Definition->Id) : std::string();
    value.name = Narrow(name);
    value.wanted = Narrow(parameter.Value);
    return value;
}

void CompareWith(const ParameterDefinition& definition, const Value& own, const std::wstring& text, WantedValue& value)
{
    value.own = own;
    value.unit = definition.unit;
    value.isDriven = definition.IsDriven();
    value.fault = FaultOf(definition, text);
}

void WriteValue(JsonWriter& json, const Session& session, const WantedValue& value)
{
    json.BeginObject();
    json.Key("family");
    if (value.own)
        WriteFamilyValue(json, *value.own);
    else
        json.Null();
    json.Key("fault");
    WriteReason(json, session, value.fault);
    json.Member("id", value.id);
    json.Member("isDriven", value.isDriven);
    json.Member("name", value.name);
    json.Member("unit", value.unit);
    json.Member("wanted", value.wanted);
    json.EndObject();
}

} // namespace

std::vector<WantedValue> CompareValues(
    const familyfiles::FamilyModel& model, const tarnnuq::ISpecification& specification)
{
    Reason ignored;
    const auto computed = model.TypeValues(0, ignored);
    const std::vector<Value> own = computed ? *computed : familyfiles::GivenValues(model.Manifest(), 0);
    const Indexes indexes = IndexById(model.Manifest());
    std::vector<WantedValue> values;
    for (const auto& [name, parameter] : specification.Parameters) {
        if (!parameter)
            continue;
        WantedValue& value = values.emplace_back(WantedValueOf(name, *parameter));
        const auto found = indexes.find(value.id);
        if (found == indexes.end())
            value.fault = UnknownParameter(value.name);
        else
            CompareWith(model.Manifest().parameters[found->second], own[found->second], parameter->Value, value);
    }
    return values;
}

void ShowValues(Session& session, const std::vector<WantedValue>& values)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "PARAMETER"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "WANTED")), Table::Align::Right},
        {Title(QT_TRANSLATE_NOOP("Titles", "FIRST TYPE")), Table::Align::Right},
        {Title(QT_TRANSLATE_NOOP("Titles", "UNIT"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "NOTE")), Table::Align::Left, true}});
    for (const WantedValue& value : values) {
        const std::string driven = value.isDriven ? Title(QT_TRANSLATE_NOOP("Titles", "computed")) : std::string();
        table.AddRow(
            {Visible(value.name), Visible(value.wanted), value.own ? FamilyValueText(*value.own) : std::string("-"),
                Visible(value.unit), value.fault ? VisibleText(SentenceOf(session, value.fault)) : driven});
    }
    session.Out().Write(table.Take());
}

void WriteChecked(JsonWriter& json, const Session& session, const CheckedSpecification& checked)
{
    json.BeginObject();
    json.Key("reason");
    WriteReason(json, session, checked.reason);
    json.Member("specification", checked.name);
    json.List("values", checked.values,
        [&session](JsonWriter& list, const WantedValue& value) { WriteValue(list, session, value); });
    json.Member("yieldsGeometry", checked.yieldsGeometry);
    json.EndObject();
}

} // namespace nuq
