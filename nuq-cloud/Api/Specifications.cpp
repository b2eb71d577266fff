#include "Api/Specifications.h"

#include "Api/ApiError.h"
#include "Text/JsonWriter.h"

#include <nlohmann/json.hpp>

namespace nuqcloud {
namespace {

using Json = nlohmann::json;

std::vector<std::string> DefinitionNames(const std::string& definitions)
{
    std::vector<std::string> names;
    for (const Json& definition : Json::parse(definitions)) {
        names.push_back(definition.at("name").get<std::string>());
    }
    return names;
}

/// A value that is null was not given, and is left out of the reply.
void WriteFamilyType(JsonWriter& out, const Json& familyType, const std::vector<std::string>& names)
{
    const Json& values = familyType.at("values");
    out.BeginObject().Key("name").Text(familyType.at("name").get_ref<const std::string&>());
    out.Key("parameterValues").BeginArray();
    for (std::size_t i = 0; i < names.size() && i < values.size(); ++i) {
        if (values[i].is_string()) {
            out.BeginObject().Key("name").Text(names[i]);
            out.Key("value").Text(values[i].get_ref<const std::string&>()).EndObject();
        }
    }
    out.EndArray().EndObject();
}

} // namespace

std::string Specifications::FamilyTypeNames(const ComponentDetailRecord& detail)
{
    JsonWriter out;
    out.BeginArray();
    for (const Json& familyType : Json::parse(detail.familyTypes)) {
        out.Text(familyType.at("name").get_ref<const std::string&>());
    }
    out.EndArray();
    return out.Take();
}

std::string Specifications::All(const ComponentDetailRecord& detail, Language language) const
{
    const auto shared = TemplateOf(detail.component.categoryCode, language);
    JsonWriter out;
    out.BeginObject().Key("parameters").Raw(shared->definitions).Key("familyTypes").BeginArray();
    for (const Json& familyType : Json::parse(detail.familyTypes)) {
        WriteFamilyType(out, familyType, shared->names);
    }
    out.EndArray().EndObject();
    return out.Take();
}

std::string Specifications::One(
    const ComponentDetailRecord& detail, const std::string& familyType, Language language) const
{
    for (const Json& candidate : Json::parse(detail.familyTypes)) {
        if (candidate.at("name").get_ref<const std::string&>() == familyType) {
            const auto shared = TemplateOf(detail.component.categoryCode, language);
            JsonWriter out;
            out.BeginObject().Key("parameters").Raw(shared->definitions).Key("familyType");
            WriteFamilyType(out, candidate, shared->names);
            out.EndObject();
            return out.Take();
        }
    }
    throw NotFound("family type of component \"" + detail.component.id + "\" with the name", familyType);
}

std::shared_ptr<const Specifications::Template> Specifications::TemplateOf(
    const std::string& categoryCode, Language language) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::shared_ptr<const Template>& shared = m_templates[{categoryCode, language}];
    if (!shared) {
        const auto texts = m_catalogue.Connection()->PropertyTemplate(categoryCode).value_or(BilingualText{"[]", "[]"});
        const std::string& definitions = In(language, texts);
        shared = std::make_shared<const Template>(Template{definitions, DefinitionNames(definitions)});
    }
    return shared;
}

} // namespace nuqcloud
