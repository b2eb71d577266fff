#include "FamilyFiles/Manifest/ManifestWriter.h"

#include <cmath>
#include <cstdint>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <string_view>

namespace familyfiles {

namespace {

class Writer
{
public:
    Writer() : m_writer(m_text) { m_writer.SetIndent(' ', 2); }

    std::string Write(const FamilyManifest& manifest);

private:
    void Put(std::string_view text) { m_writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size())); }
    void Put(double number);
    void Put(const Value& value);
    void Put(const BilingualText& text);
    void Put(const ParameterDefinition& parameter);
    void PutBounds(const ParameterDefinition& parameter);
    void Put(const FamilyManifest& manifest, const TypeDefinition& type);
    void Put(const Connector& connector);
    void Put(const BuiltRecord& built);
    void Key(std::string_view name) { m_writer.Key(name.data(), static_cast<rapidjson::SizeType>(name.size())); }
    template <typename Part>
    void Member(std::string_view name, const Part& part)
    {
        Key(name);
        Put(part);
    }
    void TextUnlessEmpty(std::string_view name, const std::string& text);
    template <typename Texts>
    void Formulas(std::string_view name, const Texts& texts);
    void Extra(const std::string& object);
    void Object(const std::string& json);

    rapidjson::StringBuffer m_text;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_writer;
};

/// Whole numbers without ".0".
void Writer::Put(double number)
{
    constexpr double Exact = 9007199254740992.0;
    if (number == std::floor(number) && std::fabs(number) < Exact && !(number == 0.0 && std::signbit(number))) {
        m_writer.Int64(static_cast<std::int64_t>(number));
    } else {
        m_writer.Double(number);
    }
}

void Writer::Put(const Value& value)
{
    switch (StorageTypeOf(value)) {
    case StorageType::YesNo:
        m_writer.Bool(std::get<bool>(value));
        break;
    case StorageType::Integer:
        m_writer.Int(std::get<int>(value));
        break;
    case StorageType::FloatingPoint:
        Put(std::get<double>(value));
        break;
    case StorageType::Text:
        Put(std::string_view(std::get<std::string>(value)));
        break;
    }
}

void Writer::TextUnlessEmpty(std::string_view name, const std::string& text)
{
    if (!text.empty()) {
        Member(name, std::string_view(text));
    }
}

void Writer::Object(const std::string& json)
{
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag>(json.data(), json.size());
    document.Accept(m_writer);
}

void Writer::Extra(const std::string& object)
{
    if (object.empty()) {
        return;
    }
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag>(object.data(), object.size());
    for (const auto& member : document.GetObject()) {
        m_writer.Key(member.name.GetString(), member.name.GetStringLength());
        member.value.Accept(m_writer);
    }
}

void Writer::Put(const BilingualText& text)
{
    m_writer.StartObject();
    TextUnlessEmpty("zh", text.chinese);
    TextUnlessEmpty("en", text.english);
    Extra(text.extra);
    m_writer.EndObject();
}

void Writer::PutBounds(const ParameterDefinition& parameter)
{
    if (parameter.minimum) {
        Member("minimum", *parameter.minimum);
    }
    if (parameter.maximum) {
        Member("maximum", *parameter.maximum);
    }
    if (!parameter.allowed.empty()) {
        Key("allowed");
        m_writer.StartArray();
        for (const Value& value : parameter.allowed) {
            Put(value);
        }
        m_writer.EndArray();
    }
    if (parameter.defaultValue) {
        Member("default", *parameter.defaultValue);
    }
}

void Writer::Put(const ParameterDefinition& parameter)
{
    const BilingualText& label = parameter.label;
    m_writer.StartObject();
    Member("id", std::string_view(parameter.id));
    Member("name", std::string_view(parameter.name));
    if (!label.chinese.empty() || !label.english.empty() || !label.extra.empty()) {
        Member("label", label);
    }
    Member("storageType", Value(static_cast<int>(parameter.storageType)));
    Member("displayType", Value(parameter.displayType));
    TextUnlessEmpty("unit", parameter.unit);
    Member("isInstance", Value(parameter.isInstance));
    PutBounds(parameter);
    TextUnlessEmpty("formula", parameter.formula);
    Extra(parameter.extra);
    m_writer.EndObject();
}

void Writer::Put(const FamilyManifest& manifest, const TypeDefinition& type)
{
    m_writer.StartObject();
    Member("name", std::string_view(type.name));
    Key("values");
    m_writer.StartObject();
    for (const auto& [parameter, value] : type.values) {
        Member(manifest.parameters[parameter].name, value);
    }
    m_writer.EndObject();
    Extra(type.extra);
    m_writer.EndObject();
}

template <typename Texts>
void Writer::Formulas(std::string_view name, const Texts& texts)
{
    Key(name);
    m_writer.StartArray();
    for (const std::string& text : texts) {
        Put(std::string_view(text));
    }
    m_writer.EndArray();
}

void Writer::Put(const Connector& connector)
{
    m_writer.StartObject();
    Member("name", std::string_view(connector.name));
    TextUnlessEmpty("system", connector.system);
    Formulas("position", connector.position);
    Formulas("direction", connector.direction);
    TextUnlessEmpty("shape", connector.shape);
    if (!connector.size.empty()) {
        Formulas("size", connector.size);
    }
    Extra(connector.extra);
    m_writer.EndObject();
}

void Writer::Put(const BuiltRecord& built)
{
    m_writer.StartObject();
    Member("volume", built.volume);
    Member("area", built.area);
    Key("box");
    m_writer.StartArray();
    for (const double number : built.box) {
        Put(number);
    }
    m_writer.EndArray();
    Member("kernel", std::string_view(built.kernel));
    Extra(built.extra);
    m_writer.EndObject();
}

std::string Writer::Write(const FamilyManifest& manifest)
{
    m_writer.StartObject();
    Member("format", FamilyManifest::FormatName);
    Member("version", Value(manifest.version));
    Member("name", manifest.name);
    Member("category", std::string_view(manifest.category));
    Key("parameters");
    m_writer.StartArray();
    for (const ParameterDefinition& parameter : manifest.parameters) {
        Put(parameter);
    }
    m_writer.EndArray();
    Key("types");
    m_writer.StartArray();
    for (const TypeDefinition& type : manifest.types) {
        Put(manifest, type);
    }
    m_writer.EndArray();
    if (!manifest.geometry.empty()) {
        Key("geometry");
        Object(manifest.geometry);
    }
    if (!manifest.connectors.empty()) {
        Key("connectors");
        m_writer.StartArray();
        for (const Connector& connector : manifest.connectors) {
            Put(connector);
        }
        m_writer.EndArray();
    }
    if (manifest.built) {
        Member("built", *manifest.built);
    }
    Extra(manifest.extra);
    m_writer.EndObject();
    return std::string(m_text.GetString(), m_text.GetSize()) + '\n';
}

} // namespace

std::string WriteManifest(const FamilyManifest& manifest)
{
    return Writer().Write(manifest);
}

} // namespace familyfiles
