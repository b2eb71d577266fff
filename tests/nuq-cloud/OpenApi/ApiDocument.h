#pragma once

#include "nuq-cloud/support/RawClient.h"

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace cloudtest {

/// A parameter of an operation.
struct ApiParameter
{
    std::string name;
    std::string in; ///< "path", "query" or "header"
    bool required = false;
    nlohmann::json schema;
    std::string example; ///< empty when the document gives none
};

/// One address of the document.
struct ApiOperation
{
    std::string path;
    bool needsToken = false;
    std::vector<ApiParameter> parameters;
    nlohmann::json responses; ///< by status
    std::vector<std::string> clientTemplates;
};

/// docs/openapi.yaml, read for checking a server against it.
class ApiDocument
{
public:
    ApiDocument();

    const std::vector<ApiOperation>& Operations() const { return m_operations; }
    const nlohmann::json& Whole() const { return m_json; }

    /// What the reply has or has not that the document says otherwise; empty when it agrees.
    std::vector<std::string> Differences(const ApiOperation& operation, const RawReply& reply) const;

    /// The same for every example in the document.
    std::vector<std::string> WrongExamples() const;

private:
    ApiParameter ReadParameter(const nlohmann::json& reference) const;
    ApiOperation ReadOperation(const std::string& path, const nlohmann::json& node) const;
    std::vector<std::string> HeaderDifferences(const nlohmann::json& response, const RawReply& reply) const;
    std::vector<std::string> BodyDifferences(const nlohmann::json& response, const RawReply& reply) const;

    nlohmann::json m_json;
    std::vector<ApiOperation> m_operations;
};

} // namespace cloudtest
