#include "FaultRelay/Fault.h"

#include <charconv>

namespace nuqcloud {
namespace {

constexpr auto kConnection = FaultLayer::Connection;
constexpr auto kHttp = FaultLayer::Http;
constexpr auto kNone = FaultValue::None;
constexpr auto kNumber = FaultValue::Number;
constexpr auto kText = FaultValue::Text;

constexpr std::int64_t kTenMinutes = 600000;
constexpr std::int64_t kMostBytes = 1LL << 40;
constexpr std::int64_t kYear = 31536000;

const FaultKind kFaultKinds[] = {
    {"delay", kConnection, kNumber, "MS", "1000", 0, kTenMinutes, "the reply begins later"},
    {"jitter", kConnection, kNumber, "MS", "100", 0, kTenMinutes, "the reply begins later by a random part of that"},
    {"drip", kConnection, kNumber, "BYTES_PER_SECOND", "100", 1, kMostBytes, "the reply trickles"},
    {"stall-before-headers", kConnection, kNone, "", "", 0, 0, "no answer ever comes, the connection stays open"},
    {"stall", kConnection, kNumber, "BYTES", "", 0, kMostBytes, "silence after so much of the body (half of it)"},
    {"close-before-headers", kConnection, kNone, "", "", 0, 0, "the connection is closed without an answer"},
    {"close-in-headers", kConnection, kNone, "", "", 0, 0, "the connection is closed within the headers"},
    {"close-after-headers", kConnection, kNone, "", "", 0, 0, "the connection is closed behind the headers"},
    {"truncate", kConnection, kNumber, "BYTES", "", 0, kMostBytes, "closed after so much of the body (half of it)"},
    {"reset", kConnection, kNumber, "BYTES", "", 0, kMostBytes, "reset after so much of the body (half of it)"},
    {"length-too-long", kConnection, kNumber, "BYTES", "10", 1, kMostBytes, "Content-Length promises that much more"},
    {"length-too-short", kConnection, kNumber, "BYTES", "10", 1, kMostBytes, "Content-Length admits that much less"},
    {"no-length", kConnection, kNone, "", "", 0, 0, "no Content-Length; the end is the connection's"},
    {"double-length", kConnection, kNone, "", "", 0, 0, "two Content-Length headers that differ"},
    {"no-status-line", kConnection, kNone, "", "", 0, 0, "an answer that is not HTTP"},
    {"bad-status", kConnection, kNone, "", "", 0, 0, "a status that is no number"},
    {"broken-chunk", kConnection, kNone, "", "", 0, 0, "chunked, with a chunk length that is none"},
    {"status", kHttp, kNumber, "STATUS", "500", 200, 599, "that status with an error in the envelope"},
    {"status-empty", kHttp, kNumber, "STATUS", "500", 200, 599, "that status without a body"},
    {"status-html", kHttp, kNumber, "STATUS", "502", 200, 599, "that status with an HTML page"},
    {"unauthorized", kHttp, kNone, "", "", 0, 0, "401 as for a wrong token"},
    {"forbidden", kHttp, kNone, "", "", 0, 0, "403 with an error in the envelope"},
    {"rate-limit", kHttp, kNumber, "SECONDS", "5", 0, kYear, "429 with Retry-After in seconds"},
    {"rate-limit-date", kHttp, kNumber, "SECONDS", "5", 0, kYear, "429 with Retry-After as a date that far off"},
    {"unavailable", kHttp, kNumber, "SECONDS", "5", 0, kYear, "503 with Retry-After in seconds"},
    {"not-success", kHttp, kText, "CODE", "BUSY", 0, 0, "200 whose envelope carries that code"},
    {"redirect", kHttp, kText, "URL", "", 0, 0, "302 to that address"},
    {"redirect-loop", kHttp, kNone, "", "", 0, 0, "302 to the same address"},
    {"html", kHttp, kNone, "", "", 0, 0, "200 with an HTML page"},
    {"content-type", kHttp, kText, "TYPE", "text/plain", 0, 0, "the right body under a wrong type"},
    {"empty", kHttp, kNone, "", "", 0, 0, "200 without a body"},
    {"no-content", kHttp, kNone, "", "", 0, 0, "204"},
    {"partial", kHttp, kNone, "", "", 0, 0, "206 with the first half of the body"},
    {"not-modified", kHttp, kNone, "", "", 0, 0, "304"},
    {"truncated-json", kHttp, kNone, "", "", 0, 0, "half of the body, its length right"},
    {"invalid-json", kHttp, kNone, "", "", 0, 0, "a body that is not JSON"},
    {"invalid-utf8", kHttp, kNone, "", "", 0, 0, "a text in the body that is not UTF-8"},
    {"array", kHttp, kNone, "", "", 0, 0, "an array where the envelope should be"},
    {"null-data", kHttp, kNone, "", "", 0, 0, "a successful envelope whose data is null"},
    {"duplicate-keys", kHttp, kNone, "", "", 0, 0, "an envelope with \"code\" twice"},
    {"deep", kHttp, kNumber, "LEVELS", "10000", 1, 5000000, "data that is arrays within arrays"},
    {"huge-body", kHttp, kNumber, "BYTES", "67108864", 64, kMostBytes, "a valid body of that size"},
    {"broken-gzip", kHttp, kNone, "", "", 0, 0, "a body that claims to be gzip"},
    {"wrong-date", kHttp, kNumber, "SECONDS", "31536000", -kYear * 10, kYear * 10, "a Date header that is off by that"},
    {"wrong-counts", kHttp, kNumber, "DIFFERENCE", "1000", -1000000, 1000000, "counts and totals that are off by that"},
    {"changed-catalogue", kHttp, kNone, "", "", 0, 0, "lists one component short, versions one higher"},
};

std::string WithValue(const FaultKind& kind)
{
    return std::string(kind.name) + (kind.value == FaultValue::None ? "" : std::string("=") + kind.valueName);
}

FaultSyntaxError UnknownKind(std::string_view name)
{
    return FaultSyntaxError(
        "There is no fault \"" + std::string(name.substr(0, 80)) + "\"; nuq-cloud --help lists those there are.");
}

void ReadNumber(Fault& fault)
{
    if (fault.value.empty() && *fault.kind->absent == '\0') {
        return;
    }
    const char* const begin = fault.value.data();
    const char* const end = begin + fault.value.size();
    const auto result = std::from_chars(begin, end, fault.number);
    if (result.ec != std::errc() || result.ptr != end || fault.number < fault.kind->smallest ||
        fault.number > fault.kind->largest) {
        throw FaultSyntaxError("Fault \"" + WithValue(*fault.kind) + "\" expects a whole number from " +
                               std::to_string(fault.kind->smallest) + " to " + std::to_string(fault.kind->largest) +
                               ", not \"" + fault.value.substr(0, 80) + "\".");
    }
}

void CheckText(const Fault& fault)
{
    bool printable = !fault.value.empty();
    for (const char c : fault.value) {
        printable = printable && c > 0x20 && c < 0x7F;
    }
    if (!printable) {
        throw FaultSyntaxError(
            "Fault \"" + WithValue(*fault.kind) + "\" expects a text of printable ASCII without blanks.");
    }
}

Fault ParseFault(std::string_view text)
{
    const std::size_t equals = text.find('=');
    const std::string_view name = text.substr(0, equals);
    Fault fault;
    fault.kind = FindFaultKind(name);
    if (fault.kind == nullptr) {
        throw UnknownKind(name);
    }
    if (equals != std::string_view::npos && fault.kind->value == FaultValue::None) {
        throw FaultSyntaxError("Fault \"" + std::string(name) + "\" takes no value.");
    }
    fault.value = equals == std::string_view::npos ? fault.kind->absent : std::string(text.substr(equals + 1));
    if (fault.kind->value == FaultValue::Number) {
        ReadNumber(fault);
    } else if (fault.kind->value == FaultValue::Text) {
        CheckText(fault);
    }
    return fault;
}

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace

const std::vector<FaultKind>& FaultKinds()
{
    static const std::vector<FaultKind> kinds(std::begin(kFaultKinds), std::end(kFaultKinds));
    return kinds;
}

const FaultKind* FindFaultKind(std::string_view name)
{
    for (const FaultKind& kind : kFaultKinds) {
        if (name == kind.name) {
            return &kind;
        }
    }
    return nullptr;
}

std::vector<Fault> ParseFaults(std::string_view text)
{
    std::vector<Fault> faults;
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        const std::string_view item = Trimmed(text.substr(0, comma));
        if (!item.empty()) {
            faults.push_back(ParseFault(item));
        }
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    }
    return faults;
}

std::string FormatFaults(const std::vector<Fault>& faults)
{
    std::string text;
    for (const Fault& fault : faults) {
        text += (text.empty() ? "" : ",") + std::string(fault.kind->name);
        text += fault.value.empty() ? "" : '=' + fault.value;
    }
    return text;
}

const Fault* FindFault(const std::vector<Fault>& faults, std::string_view name)
{
    for (const Fault& fault : faults) {
        if (fault.Is(name)) {
            return &fault;
        }
    }
    return nullptr;
}

} // namespace nuqcloud
