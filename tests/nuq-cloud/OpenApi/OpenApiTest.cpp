#include "nuq-cloud/OpenApi/ApiDocument.h"

#include "FaultRelay/Fault.h"
#include "Text/PercentEncoding.h"
#include "nuq-cloud/support/TestServer.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace cloudtest {
namespace {

using Json = nlohmann::json;
using Values = std::map<std::string, std::string>; // by the parameter's name

/// The document's examples are taken from the real library; these stand for them in the small one.
const Values kValuesHere = {{"code", "P.1.1"}, {"category_code", "P.1.1"}, {"projectId", "p1"},
    {"familyTypeName", "1/2\""}, {"ids", "78,77"}, {"public_component_id", "1003"},
    {"path", "thumbnails/pump/128.png"}};

bool IsWithin(const ApiOperation& operation, const std::string& part)
{
    return operation.path.find(part) != std::string::npos;
}

std::string ValueOf(const ApiOperation& operation, const ApiParameter& parameter)
{
    if (parameter.name == "id") {
        return IsWithin(operation, "/projects/") ? "77" : "1000";
    }
    const auto it = kValuesHere.find(parameter.name);
    return it == kValuesHere.end() ? parameter.example : it->second;
}

/// A request put together from values for parameters.
struct BuiltRequest
{
    std::string target;
    std::vector<std::string> headers;
};

BuiltRequest Build(const ApiOperation& operation, const Values& values)
{
    BuiltRequest request{operation.path, {}};
    std::string query;
    for (const ApiParameter& parameter : operation.parameters) {
        const auto it = values.find(parameter.name);
        if (it == values.end()) {
            continue;
        }
        if (parameter.in == "path") {
            const std::string mark = '{' + parameter.name + '}';
            const std::string keep = parameter.name == "path" ? "/.-" : ".-";
            request.target.replace(request.target.find(mark), mark.size(), nuqcloud::PercentEncode(it->second, keep));
        } else if (parameter.in == "query") {
            query += (query.empty() ? '?' : '&') + parameter.name + '=' + nuqcloud::PercentEncode(it->second, "");
        } else {
            request.headers.push_back(parameter.name + ": " + it->second);
        }
    }
    request.target += query;
    return request;
}

Values RequiredValues(const ApiOperation& operation)
{
    Values values;
    for (const ApiParameter& parameter : operation.parameters) {
        if (parameter.required) {
            values[parameter.name] = ValueOf(operation, parameter);
        }
    }
    return values;
}

/// Values that the schema forbids.
std::vector<std::string> ForbiddenValues(const Json& schema)
{
    std::vector<std::string> values;
    if (schema.at("type") == "integer") {
        values = {"abc", "1.5", std::to_string(schema.at("minimum").get<std::int64_t>() - 1),
            std::to_string(schema.at("maximum").get<std::int64_t>() + 1), "99999999999999999999"};
    }
    if (schema.contains("enum")) {
        values.push_back("no-such-choice");
    }
    if (schema.contains("maxLength")) {
        values.push_back(std::string(schema.at("maxLength").get<std::size_t>() + 1, 'a'));
    }
    if (schema.contains("minLength")) {
        values.emplace_back();
    }
    return values;
}

class OpenApi : public ::testing::Test
{
protected:
    /// Asks both environments and holds both replies against the document.
    void Ask(const ApiOperation& operation, const Values& values, int expected, bool withToken = true)
    {
        for (const std::string environment : {"", "/qa"}) {
            BuiltRequest request = Build(operation, values);
            if (withToken) {
                request.headers.emplace_back(environment.empty() ? kToken : "Authorization: bearer demo-token-qa");
            }
            // A request line above 8192 bytes never reaches the operation.
            if (request.target.size() > 8000) {
                return;
            }
            const RawReply reply = Fetch(m_server.Port(), environment + request.target, request.headers);
            EXPECT_EQ(reply.Status(), expected) << request.target << '\n' << reply.body;
            EXPECT_EQ(m_document.Differences(operation, reply), std::vector<std::string>()) << request.target;
            m_seen[operation.path].insert(std::to_string(reply.Status()));
        }
    }

    void AskWithGoodValues(const ApiOperation& operation)
    {
        const Values required = RequiredValues(operation);
        Values all = required;
        Ask(operation, required, 200);
        for (const ApiParameter& parameter : operation.parameters) {
            if (!parameter.required && !parameter.example.empty()) {
                Values one = required;
                one[parameter.name] = all[parameter.name] = ValueOf(operation, parameter);
                Ask(operation, one, parameter.name == "Range" ? 206 : 200);
            }
        }
        Ask(operation, all, all.count("Range") == 0 ? 200 : 206);
    }

    void AskWithForbiddenValues(const ApiOperation& operation)
    {
        for (const ApiParameter& parameter : operation.parameters) {
            if (parameter.in != "query") {
                continue;
            }
            Values values = RequiredValues(operation);
            for (const std::string& forbidden : ForbiddenValues(parameter.schema)) {
                values[parameter.name] = forbidden;
                Ask(operation, values, 400);
            }
            values.erase(parameter.name);
            Ask(operation, values, parameter.required ? 400 : 200);
        }
    }

    void AskForWhatIsNotThere(const ApiOperation& operation)
    {
        for (const ApiParameter& parameter : operation.parameters) {
            if (parameter.in == "path" || parameter.name == "category_code") {
                Values values = RequiredValues(operation);
                values[parameter.name] = "no-such-thing";
                Ask(operation, values, 404);
            }
        }
    }

    void AskForFilesByCondition(const ApiOperation& operation)
    {
        Values values = RequiredValues(operation);
        const RawReply whole = Fetch(m_server.Port(), Build(operation, values).target);
        values["If-None-Match"] = whole.Header("ETag");
        Ask(operation, values, 304);
        values.erase("If-None-Match");
        values["Range"] = "bytes=99999999-";
        Ask(operation, values, 416);
        values["Range"] = "bytes=0-9";
        values["If-Range"] = whole.Header("ETag");
        Ask(operation, values, 206);
        values["If-Range"] = "\"another\"";
        Ask(operation, values, 200);
    }

    const ApiDocument m_document;
    TestServer m_server;
    std::map<std::string, std::set<std::string>> m_seen;
};

TEST_F(OpenApi, DescribesExactlyTheAddressesThatTheServerHas)
{
    std::set<std::string> described;
    for (const ApiOperation& operation : m_document.Operations()) {
        described.insert(operation.path);
    }
    std::set<std::string> served = {"/static/{path}"};
    for (const std::string& pattern : m_server.Server().Patterns()) {
        served.insert("/api" + pattern);
    }
    EXPECT_EQ(described, served);
}

TEST_F(OpenApi, DescribesEveryReplyAndEveryReplyOccurs)
{
    for (const ApiOperation& operation : m_document.Operations()) {
        AskWithGoodValues(operation);
        AskWithForbiddenValues(operation);
        AskForWhatIsNotThere(operation);
        if (operation.needsToken) {
            Ask(operation, RequiredValues(operation), 401, false);
        } else {
            Ask(operation, RequiredValues(operation), 200, false);
            AskForFilesByCondition(operation);
        }
        std::set<std::string> described;
        for (const auto& response : operation.responses.items()) {
            described.insert(response.key());
        }
        EXPECT_EQ(m_seen[operation.path], described) << operation.path;
    }
}

TEST_F(OpenApi, GivesExamplesThatFollowItsOwnSchemas)
{
    EXPECT_EQ(m_document.WrongExamples(), std::vector<std::string>());
}

TEST_F(OpenApi, GivesClientsTemplatesOfItsOwnAddresses)
{
    for (const ApiOperation& operation : m_document.Operations()) {
        std::set<std::string> names;
        for (const ApiParameter& parameter : operation.parameters) {
            names.insert(parameter.name);
        }
        for (std::string text : operation.clientTemplates) {
            const bool isStatic = text.rfind("{static}", 0) == 0;
            text = isStatic ? "/static" + text.substr(8) : "/api" + text.substr(5);
            EXPECT_EQ(text.substr(0, text.find('?')), operation.path);
            for (std::size_t at = text.find_first_of("?&"); at != std::string::npos;
                 at = text.find_first_of("?&", at + 1)) {
                const std::string name = text.substr(at + 1, text.find('=', at) - at - 1);
                EXPECT_EQ(names.count(name), 1U) << text << " names " << name;
            }
        }
    }
}

TEST_F(OpenApi, ListsEveryFault)
{
    Json listed = m_document.Whole().at("x-fault-kinds");
    std::vector<Json> expected;
    for (const nuqcloud::FaultKind& kind : nuqcloud::FaultKinds()) {
        const std::string value = kind.value == nuqcloud::FaultValue::None ? "" : std::string("=") + kind.valueName;
        expected.push_back(
            {{"kind", kind.name + value}, {"madeBy", kind.layer == nuqcloud::FaultLayer::Http ? "server" : "relay"},
                {"absent", kind.absent}, {"effect", kind.effect}});
    }
    EXPECT_EQ(listed, Json(expected));
}

TEST_F(OpenApi, CarriesTheProductsVersion)
{
    EXPECT_EQ(m_document.Whole().at("info").at("version"), NUQ_CLOUD_VERSION);
}

} // namespace
} // namespace cloudtest
