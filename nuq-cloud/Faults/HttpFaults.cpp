#include "Faults/HttpFaults.h"

#include "Api/Envelope.h"
#include "Api/Tokens.h"
#include "Text/HttpDate.h"

#include <algorithm>
#include <ctime>
#include <memory>
#include <string>

namespace nuqcloud {
namespace {

const char kHtmlPage[] = "<!DOCTYPE html>\n<html><head><title>Gateway</title></head>"
                         "<body><h1>Something stands between you and the server.</h1></body></html>\n";

HttpReply Bare(int status)
{
    HttpReply reply;
    reply.status = status;
    return reply;
}

HttpReply WithBody(std::string body)
{
    HttpReply reply;
    reply.body = std::move(body);
    return reply;
}

HttpReply Html(int status)
{
    HttpReply reply = Bare(status);
    reply.contentType = "text/html; charset=utf-8";
    reply.body = kHtmlPage;
    return reply;
}

HttpReply Redirect(const std::string& address)
{
    HttpReply reply = Html(302);
    reply.headers.emplace_back("Location", address);
    return reply;
}

HttpReply RetryLater(int status, const char* code, const char* message, const std::string& retryAfter)
{
    HttpReply reply = ErrorReply(status, code, message);
    reply.headers.emplace_back("Retry-After", retryAfter);
    return reply;
}

HttpReply Deep(std::int64_t levels)
{
    const auto count = static_cast<std::size_t>(levels);
    return SuccessReply(std::string(count, '[') + std::string(count, ']'));
}

/// One envelope whose message is as long as it takes.
HttpReply Huge(std::int64_t length)
{
    const std::string begin = R"({"code":"success","message":")";
    const std::string end = R"(","data":null})";
    auto generated = std::make_shared<GeneratedBody>();
    generated->length = static_cast<std::size_t>(length);
    generated->make = [begin, end, total = generated->length](std::size_t offset, std::size_t count) {
        if (offset < begin.size()) {
            return begin.substr(offset, count);
        }
        const std::size_t endsAt = total - end.size();
        return offset < endsAt ? std::string(std::min(count, endsAt - offset), 'x')
                               : end.substr(offset - endsAt, count);
    };
    HttpReply reply;
    reply.generated = std::move(generated);
    return reply;
}

Environment EnvironmentOf(const HttpRequest& request)
{
    return request.target.rfind("/qa/", 0) == 0 ? Environment::Qa : Environment::Production;
}

std::optional<HttpReply> ErrorStatus(const Fault& fault, const HttpRequest& request)
{
    const int status = static_cast<int>(fault.number);
    if (fault.Is("status")) {
        return ErrorReply(status, "INJECTED_FAULT", "This error was ordered.");
    }
    if (fault.Is("status-empty")) {
        return Bare(status);
    }
    if (fault.Is("status-html")) {
        return Html(status);
    }
    if (fault.Is("unauthorized")) {
        return UnauthorizedReply(EnvironmentOf(request), true);
    }
    if (fault.Is("forbidden")) {
        return ErrorReply(403, "FORBIDDEN", "You are not allowed to see this.");
    }
    if (fault.Is("rate-limit")) {
        return RetryLater(429, "RATE_LIMITED", "Too many requests.", fault.value);
    }
    if (fault.Is("rate-limit-date")) {
        return RetryLater(429, "RATE_LIMITED", "Too many requests.", FormatHttpDate(std::time(nullptr) + fault.number));
    }
    if (fault.Is("unavailable")) {
        return RetryLater(503, "UNAVAILABLE", "The service is being maintained.", fault.value);
    }
    return std::nullopt;
}

std::optional<HttpReply> OddReply(const Fault& fault, const HttpRequest& request)
{
    if (fault.Is("redirect")) {
        return Redirect(fault.value);
    }
    if (fault.Is("redirect-loop")) {
        return Redirect(request.target);
    }
    if (fault.Is("html")) {
        return Html(200);
    }
    if (fault.Is("empty")) {
        return Bare(200);
    }
    if (fault.Is("no-content")) {
        return Bare(204);
    }
    if (fault.Is("not-modified")) {
        return Bare(304);
    }
    if (fault.Is("huge-body")) {
        return Huge(fault.number);
    }
    return std::nullopt;
}

std::optional<HttpReply> OddJson(const Fault& fault)
{
    if (fault.Is("not-success")) {
        HttpReply reply = ErrorReply(200, fault.value, "The request was understood but not carried out.");
        return reply;
    }
    if (fault.Is("invalid-json")) {
        return WithBody(R"({"code":"success","message":"","data":[}])");
    }
    if (fault.Is("array")) {
        return WithBody(R"([{"code":"success","message":"","data":null}])");
    }
    if (fault.Is("null-data")) {
        return SuccessReply("null");
    }
    if (fault.Is("duplicate-keys")) {
        return WithBody(R"({"code":"success","message":"","data":null,"code":"FAILED","data":[]})");
    }
    if (fault.Is("deep")) {
        return Deep(fault.number);
    }
    return std::nullopt;
}

/// The reply's own copy of its body.
std::string& OwnBody(HttpReply& reply)
{
    if (reply.generated || reply.prepared) {
        reply.body = WholeBody(reply);
        reply.generated.reset();
        reply.prepared.reset();
    }
    return reply.body;
}

void Halve(std::string& body)
{
    body.resize(body.size() / 2);
}

void MakePartial(HttpReply& reply)
{
    std::string& body = OwnBody(reply);
    const std::size_t size = body.size();
    Halve(body);
    reply.status = 206;
    reply.headers.emplace_back("Content-Range",
        "bytes 0-" + std::to_string(std::max<std::size_t>(body.size(), 1) - 1) + '/' + std::to_string(size));
}

/// Puts bytes that no UTF-8 text holds into the first text of the body.
void BreakUtf8(std::string& body)
{
    const std::size_t at = body.find(R"("message":")");
    body.insert(at == std::string::npos ? 0 : at + std::string(R"("message":")").size(), "\xC3\x28\xFF");
}

void SpoilBy(const Fault& fault, HttpReply& reply)
{
    if (fault.Is("content-type")) {
        reply.contentType = fault.value;
    } else if (fault.Is("truncated-json")) {
        Halve(OwnBody(reply));
    } else if (fault.Is("partial")) {
        MakePartial(reply);
    } else if (fault.Is("invalid-utf8")) {
        BreakUtf8(OwnBody(reply));
    } else if (fault.Is("broken-gzip")) {
        OwnBody(reply);
        reply.compressible = false;
        reply.headers.emplace_back("Content-Encoding", "gzip");
    }
}

} // namespace

Tweaks TweaksFor(const std::vector<Fault>& faults)
{
    Tweaks tweaks;
    if (const Fault* const fault = FindFault(faults, "wrong-counts")) {
        tweaks.countError = fault->number;
    }
    tweaks.catalogueChanged = FindFault(faults, "changed-catalogue") != nullptr;
    return tweaks;
}

std::optional<HttpReply> ReplacementFor(const std::vector<Fault>& faults, const HttpRequest& request)
{
    for (const Fault& fault : faults) {
        if (auto reply = ErrorStatus(fault, request)) {
            return reply;
        }
        if (auto reply = OddReply(fault, request)) {
            return reply;
        }
        if (auto reply = OddJson(fault)) {
            return reply;
        }
    }
    return std::nullopt;
}

void Spoil(const std::vector<Fault>& faults, HttpReply& reply)
{
    for (const Fault& fault : faults) {
        SpoilBy(fault, reply);
    }
}

} // namespace nuqcloud
