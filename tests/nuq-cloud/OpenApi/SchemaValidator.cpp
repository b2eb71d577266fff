#include "nuq-cloud/OpenApi/SchemaValidator.h"

#include "nuq-cloud/support/Matches.h"

#include <algorithm>

namespace cloudtest {
namespace {

using Json = nlohmann::json;

bool IsOfType(const Json& instance, const std::string& type)
{
    return (type == "object" && instance.is_object()) || (type == "array" && instance.is_array()) ||
           (type == "string" && instance.is_string()) || (type == "integer" && instance.is_number_integer()) ||
           (type == "number" && instance.is_number()) || (type == "boolean" && instance.is_boolean()) ||
           (type == "null" && instance.is_null());
}

std::size_t Length(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace

const Json& Resolve(const Json& document, const Json& node)
{
    if (!node.is_object() || !node.contains("$ref")) {
        return node;
    }
    return Resolve(document, document.at(Json::json_pointer(node.at("$ref").get<std::string>().substr(1))));
}

/// One validation: walks schema and instance together and collects what is wrong.
class SchemaValidator::Run
{
public:
    explicit Run(const Json& document) : m_document(document) {}

    void Check(const Json& reference, const Json& instance, const std::string& place)
    {
        const Json& schema = Resolve(m_document, reference);
        for (const auto& rule : schema.items()) {
            CheckRule(schema, rule.key(), rule.value(), instance, place);
        }
    }

    std::vector<std::string> Errors() const { return m_errors; }

private:
    void Fail(const std::string& place, const std::string& what)
    {
        m_errors.push_back((place.empty() ? "the value" : place) + ' ' + what);
    }

    void CheckRule(
        const Json& schema, const std::string& rule, const Json& value, const Json& instance, const std::string& place)
    {
        if (rule == "type") {
            CheckType(value, instance, place);
        } else if (rule == "enum") {
            Require(
                std::find(value.begin(), value.end(), instance) != value.end(), place, "is none of " + value.dump());
        } else if (rule == "const") {
            Require(instance == value, place, "is not " + value.dump());
        } else if (!CheckSize(rule, value, instance, place) && !CheckShape(schema, rule, value, instance, place)) {
            const bool annotation = rule == "description" || rule == "example" || rule == "default";
            Require(annotation, place, "has a schema with the keyword " + rule + ", which is not known");
        }
    }

    void Require(bool condition, const std::string& place, const std::string& what)
    {
        if (!condition) {
            Fail(place, what);
        }
    }

    void CheckType(const Json& types, const Json& instance, const std::string& place)
    {
        Require(IsOfType(instance, types.get<std::string>()), place, "is no " + types.get<std::string>());
    }

    bool CheckSize(const std::string& rule, const Json& limit, const Json& instance, const std::string& place)
    {
        if (rule == "minimum") {
            Require(!instance.is_number() || instance >= limit, place, "is below " + limit.dump());
        } else if (rule == "maximum") {
            Require(!instance.is_number() || instance <= limit, place, "is above " + limit.dump());
        } else if (rule == "minLength") {
            Require(!instance.is_string() || Length(instance) >= limit, place, "is shorter than " + limit.dump());
        } else if (rule == "maxLength") {
            Require(!instance.is_string() || Length(instance) <= limit, place, "is longer than " + limit.dump());
        } else if (rule == "maxItems") {
            Require(!instance.is_array() || instance.size() <= limit, place, "has more than " + limit.dump());
        } else if (rule == "pattern") {
            Require(!instance.is_string() || Matches(instance, limit), place, "does not match " + limit.dump());
        } else {
            return false;
        }
        return true;
    }

    bool CheckShape(
        const Json& schema, const std::string& rule, const Json& value, const Json& instance, const std::string& place)
    {
        if (rule == "required") {
            for (const Json& name : value) {
                Require(!instance.is_object() || instance.contains(name.get<std::string>()), place,
                    "has no " + name.get<std::string>());
            }
        } else if (rule == "properties") {
            for (const auto& property : value.items()) {
                if (instance.is_object() && instance.contains(property.key())) {
                    Check(property.value(), instance.at(property.key()), place + '/' + property.key());
                }
            }
        } else if (rule == "additionalProperties") {
            CheckFurtherMembers(schema.value("properties", Json::object()), value, instance, place);
        } else if (rule == "items") {
            for (std::size_t i = 0; instance.is_array() && i < instance.size(); ++i) {
                Check(value, instance.at(i), place + '/' + std::to_string(i));
            }
        } else {
            return false;
        }
        return true;
    }

    void CheckFurtherMembers(const Json& known, const Json& allowed, const Json& instance, const std::string& place)
    {
        if (!instance.is_object()) {
            return;
        }
        for (const auto& member : instance.items()) {
            if (known.contains(member.key())) {
                continue;
            }
            if (allowed == false) {
                Fail(place, "has a member " + member.key() + " that is not described");
            } else {
                Check(allowed, member.value(), place + '/' + member.key());
            }
        }
    }

    const Json& m_document;
    std::vector<std::string> m_errors;
};

std::vector<std::string> SchemaValidator::Validate(const Json& schema, const Json& instance) const
{
    Run run(m_document);
    run.Check(schema, instance, "");
    return run.Errors();
}

} // namespace cloudtest
