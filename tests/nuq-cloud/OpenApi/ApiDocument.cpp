#include "nuq-cloud/OpenApi/ApiDocument.h"

#include "nuq-cloud/OpenApi/SchemaValidator.h"
#include "nuq-cloud/OpenApi/YamlDocument.h"

namespace cloudtest {
namespace {

using Json = nlohmann::json;

void Append(std::vector<std::string>& all, const std::vector<std::string>& further)
{
    all.insert(all.end(), further.begin(), further.end());
}

std::string AsText(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

} // namespace

ApiDocument::ApiDocument() : m_json(ReadYaml(NUQ_OPENAPI_FILE))
{
    for (const auto& path : m_json.at("paths").items()) {
        m_operations.push_back(ReadOperation(path.key(), path.value().at("get")));
    }
}

ApiParameter ApiDocument::ReadParameter(const Json& reference) const
{
    const Json& node = Resolve(m_json, reference);
    ApiParameter parameter;
    parameter.name = node.at("name").get<std::string>();
    parameter.in = node.at("in").get<std::string>();
    parameter.required = node.value("required", false);
    parameter.schema = node.at("schema");
    parameter.example = node.contains("example") ? AsText(node.at("example")) : "";
    return parameter;
}

ApiOperation ApiDocument::ReadOperation(const std::string& path, const Json& node) const
{
    ApiOperation operation;
    operation.path = path;
    operation.needsToken = node.contains("security");
    for (const Json& parameter : node.at("parameters")) {
        operation.parameters.push_back(ReadParameter(parameter));
    }
    for (const auto& response : node.at("responses").items()) {
        operation.responses[response.key()] = Resolve(m_json, response.value());
    }
    operation.clientTemplates = node.at("x-client-url-templates").get<std::vector<std::string>>();
    return operation;
}

std::vector<std::string> ApiDocument::Differences(const ApiOperation& operation, const RawReply& reply) const
{
    const std::string status = std::to_string(reply.Status());
    if (!operation.responses.contains(status)) {
        return {"status " + status + " is not described"};
    }
    std::vector<std::string> differences = HeaderDifferences(operation.responses.at(status), reply);
    Append(differences, BodyDifferences(operation.responses.at(status), reply));
    return differences;
}

std::vector<std::string> ApiDocument::HeaderDifferences(const Json& response, const RawReply& reply) const
{
    std::vector<std::string> differences;
    const Json headers = response.value("headers", Json::object());
    for (const auto& header : headers.items()) {
        const Json& schema = Resolve(m_json, header.value()).at("schema");
        for (const std::string& error : SchemaValidator(m_json).Validate(schema, reply.Header(header.key()))) {
            differences.push_back("header " + header.key() + ": " + error);
        }
    }
    return differences;
}

std::vector<std::string> ApiDocument::BodyDifferences(const Json& response, const RawReply& reply) const
{
    const Json content = response.value("content", Json::object());
    const std::string type = reply.Header("Content-Type");
    if (content.empty()) {
        return reply.body.empty() ? std::vector<std::string>() : std::vector<std::string>{"there is a body"};
    }
    if (!content.contains(type)) {
        return {"the content type " + type + " is not described"};
    }
    if (!content.at(type).is_object() || !content.at(type).contains("schema")) {
        return {};
    }
    const Json body = Json::parse(reply.Text(), nullptr, false);
    return body.is_discarded() ? std::vector<std::string>{"the body is not JSON"}
                               : SchemaValidator(m_json).Validate(content.at(type).at("schema"), body);
}

std::vector<std::string> ApiDocument::WrongExamples() const
{
    std::vector<std::string> wrong;
    for (const ApiOperation& operation : m_operations) {
        for (const auto& response : operation.responses.items()) {
            const Json content = response.value().value("content", Json::object());
            if (!content.contains("application/json")) {
                continue;
            }
            const Json& body = content.at("application/json");
            for (const auto& error : SchemaValidator(m_json).Validate(body.at("schema"), body.at("example"))) {
                wrong.push_back(operation.path + ' ' + response.key() + ": " + error);
            }
        }
    }
    return wrong;
}

} // namespace cloudtest
