#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace cloudtest {

/// Checks JSON against the part of JSON Schema that the project's documents use.
///
/// A keyword that is not known is an error, so that no rule of a document goes unchecked.
class SchemaValidator
{
public:
    /// @param document what "$ref" points into; outlives the validator
    explicit SchemaValidator(const nlohmann::json& document) : m_document(document) {}

    /// What is wrong, each with its place; empty when nothing is.
    std::vector<std::string> Validate(const nlohmann::json& schema, const nlohmann::json& instance) const;

private:
    class Run;

    const nlohmann::json& m_document;
};

/// Follows "$ref" within the document.
const nlohmann::json& Resolve(const nlohmann::json& document, const nlohmann::json& node);

} // namespace cloudtest
