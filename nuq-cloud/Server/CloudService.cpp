#include "Server/CloudService.h"

#include "Api/ApiError.h"
#include "Api/Envelope.h"
#include "Api/Limits.h"

#include <exception>
#include <utility>

namespace nuqcloud {
namespace {

bool IsReading(const HttpRequest& request)
{
    return request.method == "GET" || request.method == "HEAD";
}

HttpReply MethodNotAllowed(const std::string& method)
{
    HttpReply reply = ErrorReply(405, "METHOD_NOT_ALLOWED", "This address answers GET and HEAD, not " + method + '.');
    reply.headers.emplace_back("Allow", "GET, HEAD");
    return reply;
}

HttpReply UnknownPath()
{
    return ErrorReply(404, "NOT_FOUND", "There is nothing at this address. The API begins at /api, files at /static.");
}

HttpReply UnreadablePath()
{
    return ErrorReply(400, "BAD_REQUEST",
        "The path holds a part that is longer than " + std::to_string(kLongestPathPart) +
            " bytes or not percent-encoded UTF-8 without NUL.");
}

/// Takes the "qa" off the path.
Environment TakeEnvironment(std::vector<std::string>& segments)
{
    if (segments.front() != "qa") {
        return Environment::Production;
    }
    segments.erase(segments.begin());
    return Environment::Qa;
}

std::string TakeFirst(std::vector<std::string>& segments)
{
    if (segments.empty()) {
        return {};
    }
    std::string first = std::move(segments.front());
    segments.erase(segments.begin());
    return first;
}

} // namespace

CloudService::CloudService(const LibraryFolder& library, Tokens tokens)
    : m_catalogue(library), m_specifications(m_catalogue), m_categoryEndpoints(m_catalogue),
      m_componentEndpoints(m_catalogue, m_specifications), m_projectEndpoints(m_catalogue, m_specifications),
      m_staticFiles(library.StaticFolder()), m_tokens(std::move(tokens))
{
    m_categoryEndpoints.AddTo(m_router);
    m_componentEndpoints.AddTo(m_router);
    m_projectEndpoints.AddTo(m_router);
}

HttpReply CloudService::Answer(const HttpRequest& request, Tweaks tweaks) const
{
    try {
        return Dispatch(request, tweaks);
    } catch (const ApiError& error) {
        return ErrorReply(error.Status(), error.Code(), error.what());
    } catch (const std::exception&) {
        return ErrorReply(500, "INTERNAL_ERROR",
            "The library could not be read for this request. If it happens again, build the library anew.");
    }
}

HttpReply CloudService::Dispatch(const HttpRequest& request, Tweaks tweaks) const
{
    RequestTarget target = ParseTarget(request.target, kLongestPathPart);
    if (!target.valid) {
        return UnreadablePath();
    }
    const Environment environment = TakeEnvironment(target.segments);
    const std::string area = TakeFirst(target.segments);
    if (area == "api") {
        return AnswerApi(request, environment, std::move(target), tweaks);
    }
    if (area != "static") {
        return UnknownPath();
    }
    return IsReading(request) ? m_staticFiles.Get(request, target.segments) : MethodNotAllowed(request.method);
}

HttpReply CloudService::AnswerApi(
    const HttpRequest& request, Environment environment, RequestTarget target, Tweaks tweaks) const
{
    if (!IsAuthorized(request, environment, m_tokens)) {
        return UnauthorizedReply(environment, !request.authorization.empty());
    }
    Router::Match match = m_router.Find(target.segments);
    if (match.endpoint == nullptr) {
        return UnknownPath();
    }
    if (!IsReading(request)) {
        return MethodNotAllowed(request.method);
    }
    ApiRequest api;
    api.path = std::move(match.parameters);
    api.query = QueryParameters(target.query);
    api.language = PreferredLanguage(request.acceptLanguage);
    api.tweaks = tweaks;
    HttpReply reply = (*match.endpoint)(api);
    reply.headers.emplace_back("Vary", "Accept-Language, Accept-Encoding");
    return reply;
}

} // namespace nuqcloud
