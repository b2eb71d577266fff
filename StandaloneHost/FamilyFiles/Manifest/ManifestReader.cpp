#include "FamilyFiles/Manifest/ManifestReader.h"

#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/Manifest/ManifestCheck.h"
#include "FamilyFiles/Manifest/ManifestDocument.h"
#include "FamilyFiles/Manifest/ManifestReasons.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <unordered_map>
#include <utility>

namespace familyfiles {

namespace {

using Json = rapidjson::Value;
using Names = std::unordered_map<std::string_view, std::size_t>;

std::string TextOf(const Json& value)
{
    return {value.GetString(), value.GetStringLength()};
}

std::string JsonText(const Json& value)
{
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    value.Accept(writer);
    return {text.GetString(), text.GetSize()};
}

/// Reads the members of one object of the manifest; what is not asked for by name is extra.
class ObjectReader
{
public:
    explicit ObjectReader(const Json& object) : m_object(object) {}

    /// Null when there is no such member.
    const Json* Find(const char* name)
    {
        m_known.emplace_back(name);
        const auto found = m_object.FindMember(name);
        return found != m_object.MemberEnd() ? &found->value : nullptr;
    }

    std::string Text(const char* name)
    {
        const Json* const value = Find(name);
        return value != nullptr ? TextOf(*value) : std::string();
    }

    std::optional<double> Number(const char* name)
    {
        const Json* const value = Find(name);
        return value != nullptr ? std::optional<double>(value->GetDouble()) : std::nullopt;
    }

    /// The members that nobody has asked for, as the text of an object; empty when there are none.
    std::string Extra() const
    {
        rapidjson::StringBuffer text;
        rapidjson::Writer<rapidjson::StringBuffer> writer(text);
        writer.StartObject();
        bool isEmpty = true;
        for (const auto& member : m_object.GetObject()) {
            const std::string_view name(member.name.GetString(), member.name.GetStringLength());
            if (std::find(m_known.begin(), m_known.end(), name) == m_known.end()) {
                isEmpty = false;
                writer.Key(member.name.GetString(), member.name.GetStringLength());
                member.value.Accept(writer);
            }
        }
        writer.EndObject();
        return isEmpty ? std::string() : std::string(text.GetString(), text.GetSize());
    }

private:
    const Json& m_object;
    std::vector<std::string_view> m_known;
};

BilingualText ReadBilingual(const Json* value)
{
    if (value == nullptr) {
        return {};
    }
    ObjectReader reader(*value);
    BilingualText text;
    text.chinese = reader.Text("zh");
    text.english = reader.Text("en");
    text.extra = reader.Extra();
    return text;
}

/// A JSON number as a whole number of 32 bits; 50.0 is one, too.
std::optional<Value> IntegerFrom(const Json& json)
{
    const double number = json.IsNumber() ? json.GetDouble() : 0.5;
    const bool isWhole = number == std::floor(number) && number >= std::numeric_limits<int>::min() &&
                         number <= std::numeric_limits<int>::max();
    return isWhole ? std::optional<Value>(static_cast<int>(number)) : std::nullopt;
}

std::optional<Value> ValueFrom(const Json& json, StorageType storageType)
{
    switch (storageType) {
    case StorageType::YesNo:
        return json.IsBool() ? std::optional<Value>(json.GetBool()) : std::nullopt;
    case StorageType::Integer:
        return IntegerFrom(json);
    case StorageType::FloatingPoint:
        return json.IsNumber() ? std::optional<Value>(json.GetDouble()) : std::nullopt;
    case StorageType::Text:
        break;
    }
    return json.IsString() ? std::optional<Value>(TextOf(json)) : std::nullopt;
}

bool ReadValues(ObjectReader& reader, ParameterDefinition& parameter)
{
    if (const Json* const allowed = reader.Find("allowed")) {
        for (const Json& json : allowed->GetArray()) {
            std::optional<Value> value = ValueFrom(json, parameter.storageType);
            if (!value) {
                return false;
            }
            parameter.allowed.push_back(std::move(*value));
        }
    }
    if (const Json* const given = reader.Find("default")) {
        parameter.defaultValue = ValueFrom(*given, parameter.storageType);
        return parameter.defaultValue.has_value();
    }
    return true;
}

bool ReadParameter(const Json& json, ParameterDefinition& parameter, Reason& reason)
{
    ObjectReader reader(json);
    parameter.id = reader.Text("id");
    parameter.name = reader.Text("name");
    parameter.label = ReadBilingual(reader.Find("label"));
    parameter.storageType = static_cast<StorageType>(static_cast<int>(*reader.Number("storageType")));
    parameter.displayType = static_cast<int>(reader.Number("displayType").value_or(0));
    parameter.unit = reader.Text("unit");
    const Json* const isInstance = reader.Find("isInstance");
    parameter.isInstance = isInstance != nullptr && isInstance->GetBool();
    parameter.minimum = reader.Number("minimum");
    parameter.maximum = reader.Number("maximum");
    parameter.formula = reader.Text("formula");
    if (!ReadValues(reader, parameter)) {
        reason = BadValueInManifest({}, ValueOfWrongType(parameter.name, parameter.storageType));
        return false;
    }
    parameter.extra = reader.Extra();
    return true;
}

bool ReadTypeValues(
    const Json& json, const FamilyManifest& manifest, const Names& names, TypeDefinition& type, Reason& reason)
{
    type.values.reserve(json.MemberCount());
    for (const auto& member : json.GetObject()) {
        const std::string_view name(member.name.GetString(), member.name.GetStringLength());
        const auto found = names.find(name);
        if (found == names.end()) {
            reason = UnknownParameterInType(type.name, std::string(name));
            return false;
        }
        const ParameterDefinition& parameter = manifest.parameters[found->second];
        std::optional<Value> value = ValueFrom(member.value, parameter.storageType);
        if (!value) {
            reason = BadValueInManifest(type.name, ValueOfWrongType(parameter.name, parameter.storageType));
            return false;
        }
        type.values.emplace_back(found->second, std::move(*value));
    }
    return true;
}

bool ReadType(
    const Json& json, const FamilyManifest& manifest, const Names& names, TypeDefinition& type, Reason& reason)
{
    ObjectReader reader(json);
    type.name = reader.Text("name");
    const Json* const values = reader.Find("values");
    type.extra = reader.Extra();
    return values == nullptr || ReadTypeValues(*values, manifest, names, type, reason);
}

std::string FormulaText(const Json& json)
{
    return json.IsString() ? TextOf(json) : JsonText(json);
}

std::array<std::string, 3> ReadVector(const Json& json)
{
    return {FormulaText(json[0]), FormulaText(json[1]), FormulaText(json[2])};
}

Connector ReadConnector(const Json& json)
{
    ObjectReader reader(json);
    Connector connector;
    connector.name = reader.Text("name");
    connector.system = reader.Text("system");
    connector.position = ReadVector(*reader.Find("position"));
    connector.direction = ReadVector(*reader.Find("direction"));
    connector.shape = reader.Text("shape");
    if (const Json* const size = reader.Find("size")) {
        std::transform(size->Begin(), size->End(), std::back_inserter(connector.size), FormulaText);
    }
    connector.extra = reader.Extra();
    return connector;
}

BuiltRecord ReadBuilt(const Json& json)
{
    ObjectReader reader(json);
    BuiltRecord built;
    built.volume = reader.Number("volume").value_or(0);
    built.area = reader.Number("area").value_or(0);
    const Json& box = *reader.Find("box");
    std::transform(box.Begin(), box.End(), built.box.begin(), [](const Json& number) { return number.GetDouble(); });
    built.kernel = reader.Text("kernel");
    built.extra = reader.Extra();
    return built;
}

bool ReadParameters(const Json& json, FamilyManifest& manifest, Reason& reason)
{
    manifest.parameters.resize(json.Size());
    for (rapidjson::SizeType index = 0; index < json.Size(); ++index) {
        if (!ReadParameter(json[index], manifest.parameters[index], reason)) {
            return false;
        }
    }
    return true;
}

bool ReadTypes(const Json& json, FamilyManifest& manifest, Reason& reason)
{
    Names names;
    for (std::size_t index = 0; index < manifest.parameters.size(); ++index) {
        names.emplace(manifest.parameters[index].name, index);
    }
    manifest.types.resize(json.Size());
    for (rapidjson::SizeType index = 0; index < json.Size(); ++index) {
        if (!ReadType(json[index], manifest, names, manifest.types[index], reason)) {
            return false;
        }
    }
    return true;
}

/// The schema vouches for the kinds of all members.
bool ReadDocument(const Json& json, FamilyManifest& manifest, Reason& reason)
{
    ObjectReader reader(json);
    reader.Find("format");
    manifest.version = static_cast<int>(reader.Number("version").value_or(1));
    manifest.name = ReadBilingual(reader.Find("name"));
    manifest.category = reader.Text("category");
    if (!ReadParameters(*reader.Find("parameters"), manifest, reason) ||
        !ReadTypes(*reader.Find("types"), manifest, reason)) {
        return false;
    }
    if (const Json* const geometry = reader.Find("geometry")) {
        manifest.geometry = JsonText(*geometry);
    }
    if (const Json* const connectors = reader.Find("connectors")) {
        std::transform(connectors->Begin(), connectors->End(), std::back_inserter(manifest.connectors), ReadConnector);
    }
    if (const Json* const built = reader.Find("built")) {
        manifest.built = ReadBuilt(*built);
    }
    manifest.extra = reader.Extra();
    return true;
}

} // namespace

std::optional<FamilyManifest> ReadManifest(std::string_view json, Reason& reason)
{
    if (json.size() > FamilyFileReader::MaximalManifestSize) {
        reason = ManifestTooLarge(FamilyFileReader::MaximalManifestSize);
        return std::nullopt;
    }
    rapidjson::Document document;
    FamilyManifest manifest;
    if (!ParseManifest(json, document, reason) || !ReadDocument(document, manifest, reason) ||
        !CheckManifest(manifest, reason)) {
        return std::nullopt;
    }
    return manifest;
}

} // namespace familyfiles
