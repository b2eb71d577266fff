#include "Sessions/RecordedExchange.h"

#include "Http/RequestTarget.h"
#include "Sessions/Base64.h"
#include "Text/Utf8.h"

#include <nlohmann/json.hpp>

namespace nuqcloud {
namespace {

using Json = nlohmann::ordered_json;

std::string KeyOf(const Json& request)
{
    std::string key;
    for (const char* member : {"method", "target", "acceptLanguage", "range", "ifRange", "ifNoneMatch"}) {
        key += request.at(member).get<std::string>() + '\n';
    }
    return key;
}

/// Header values may be any bytes; a recording is UTF-8.
std::string AsText(const std::string& value)
{
    return IsValidUtf8(value) ? value : "base64:" + EncodeBase64(value);
}

Json RequestJson(const HttpRequest& request)
{
    return {{"method", request.method}, {"target", RedactTarget(request.target)},
        {"acceptLanguage", AsText(request.acceptLanguage)}, {"range", AsText(request.range)},
        {"ifRange", AsText(request.ifRange)}, {"ifNoneMatch", AsText(request.ifNoneMatch)}};
}

Json ReplyJson(const HttpRequest& request, const HttpReply& reply)
{
    Json out = {{"status", reply.status}, {"contentType", reply.contentType},
        {"compressible", reply.compressible && !reply.generated}, {"headers", Json::array()}};
    if (!request.idIsClients) {
        out["id"] = request.id;
    }
    for (const auto& [name, value] : reply.headers) {
        out["headers"].push_back({name, value});
    }
    const std::string body = WholeBody(reply);
    if (IsValidUtf8(body)) {
        out["body"] = body;
    } else {
        out["bodyBase64"] = EncodeBase64(body);
    }
    return out;
}

HttpReply ParseReply(const Json& json)
{
    HttpReply reply;
    reply.status = json.at("status").get<int>();
    reply.contentType = json.at("contentType").get<std::string>();
    reply.compressible = json.at("compressible").get<bool>();
    reply.id = json.value("id", "");
    for (const Json& header : json.at("headers")) {
        reply.headers.emplace_back(header.at(0).get<std::string>(), header.at(1).get<std::string>());
    }
    reply.body = json.contains("body") ? json.at("body").get<std::string>()
                                       : DecodeBase64(json.at("bodyBase64").get<std::string>());
    return reply;
}

} // namespace

std::string SessionKey(const HttpRequest& request)
{
    return KeyOf(RequestJson(request));
}

std::string FormatExchange(const HttpRequest& request, const HttpReply& reply)
{
    return Json{{"request", RequestJson(request)}, {"reply", ReplyJson(request, reply)}}.dump();
}

RecordedExchange ParseExchange(const std::string& line)
{
    const Json json = Json::parse(line);
    return {KeyOf(json.at("request")), ParseReply(json.at("reply"))};
}

std::string SessionHeader()
{
    return Json{{"kind", "nuq-cloud session"}, {"schema", 1}}.dump();
}

} // namespace nuqcloud
