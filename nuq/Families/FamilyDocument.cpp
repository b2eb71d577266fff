#include "Families/FamilyDocument.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"

namespace nuq {

using familyfiles::BilingualText;
using familyfiles::BuiltRecord;
using familyfiles::Connector;
using familyfiles::FamilyManifest;
using familyfiles::ParameterDefinition;
using familyfiles::Value;

namespace {

void WriteName(JsonWriter& json, std::string_view key, const BilingualText& text)
{
    json.Key(key);
    json.BeginObject();
    json.Member("en", text.english);
    json.Member("zh", text.chinese);
    json.EndObject();
}

template <class Texts>
void WriteTexts(JsonWriter& json, std::string_view key, const Texts& texts)
{
    json.Key(key);
    json.BeginArray();
    for (const std::string& text : texts)
        json.Text(std::string_view(text));
    json.EndArray();
}

void WriteConnector(JsonWriter& json, const Connector& connector)
{
    json.BeginObject();
    WriteTexts(json, "direction", connector.direction);
    json.Member("name", connector.name);
    WriteTexts(json, "position", connector.position);
    json.Member("shape", connector.shape);
    WriteTexts(json, "size", connector.size);
    json.Member("system", connector.system);
    json.EndObject();
}

void WriteBuilt(JsonWriter& json, const BuiltRecord& built)
{
    json.BeginObject();
    json.Member("area", built.area);
    json.Key("box");
    json.BeginArray();
    for (const double coordinate : built.box)
        json.Number(coordinate);
    json.EndArray();
    json.Member("kernel", built.kernel);
    json.Member("volume", built.volume);
    json.EndObject();
}

void WriteLimit(JsonWriter& json, std::string_view key, const std::optional<double>& limit)
{
    json.Key(key);
    if (limit)
        json.Number(*limit);
    else
        json.Null();
}

void WriteParameter(JsonWriter& json, const ParameterDefinition& definition, const Value& value)
{
    json.BeginObject();
    json.Key("allowed");
    json.BeginArray();
    for (const Value& allowed : definition.allowed)
        WriteFamilyValue(json, allowed);
    json.EndArray();
    json.Member("displayType", definition.displayType);
    json.Member("formula", definition.formula);
    json.Member("id", definition.id);
    json.Member("isDriven", definition.IsDriven());
    json.Member("isInstance", definition.isInstance);
    WriteName(json, "label", definition.label);
    WriteLimit(json, "maximum", definition.maximum);
    WriteLimit(json, "minimum", definition.minimum);
    json.Member("name", definition.name);
    json.Member("storageType", static_cast<std::int32_t>(definition.storageType));
    json.Member("unit", definition.unit);
    json.Key("value");
    WriteFamilyValue(json, value);
    json.EndObject();
}

void WriteParameters(JsonWriter& json, const FamilyManifest& manifest, const std::vector<Value>& values)
{
    json.Key("parameters");
    json.BeginArray(true);
    for (std::size_t index = 0; index < values.size(); ++index)
        WriteParameter(json, manifest.parameters[index], values[index]);
    json.EndArray();
}

} // namespace

std::string FamilyValueText(const Value& value)
{
    if (const bool* yesNo = std::get_if<bool>(&value))
        return YesNo(*yesNo);
    return VisibleText(QString::fromStdString(familyfiles::ValueText(value)));
}

void WriteFamilyValue(JsonWriter& json, const Value& value)
{
    if (const bool* yesNo = std::get_if<bool>(&value))
        json.Bool(*yesNo);
    else if (const int* integer = std::get_if<int>(&value))
        json.Number(static_cast<std::int64_t>(*integer));
    else if (const double* number = std::get_if<double>(&value))
        json.Number(*number);
    else
        json.Text(std::string_view(std::get<std::string>(value)));
}

void WriteFamily(JsonWriter& json, const familyfiles::FamilyModel& model, std::size_t type,
    const std::vector<Value>& values, const std::vector<std::string>& entries)
{
    const FamilyManifest& manifest = model.Manifest();
    json.BeginObject();
    json.Key("built");
    if (manifest.built)
        WriteBuilt(json, *manifest.built);
    else
        json.Null();
    json.Member("category", manifest.category);
    json.List("connectors", manifest.connectors, WriteConnector);
    WriteTexts(json, "entries", entries);
    json.Member("hasGeometry", !manifest.geometry.empty());
    WriteName(json, "name", manifest.name);
    WriteParameters(json, manifest, values);
    json.Member("schema", kSchema);
    json.Member("type", manifest.types[type].name);
    std::vector<std::string> types;
    for (const auto& each : manifest.types)
        types.push_back(each.name);
    WriteTexts(json, "types", types);
    json.Member("version", manifest.version);
    json.EndObject();
}

} // namespace nuq
