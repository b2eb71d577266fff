#include "FaultRelay/FaultRule.h"

#include <charconv>

namespace nuqcloud {
namespace {

/// Takes "#N" off the end; "#" with anything else behind it stays.
std::uint32_t TakeOrdinal(std::string_view& text)
{
    const std::size_t mark = text.rfind('#');
    if (mark == std::string_view::npos) {
        return 0;
    }
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data() + mark + 1, end, number);
    if (result.ec != std::errc() || result.ptr != end || number == 0) {
        throw FaultSyntaxError("Behind \"#\" stands the number of the request that is hit, from 1 on.");
    }
    text = text.substr(0, mark);
    return number;
}

std::string TakePath(std::string_view& text)
{
    const std::size_t mark = text.rfind("@/");
    if (mark == std::string_view::npos) {
        return "/";
    }
    const std::string path(text.substr(mark + 1));
    text = text.substr(0, mark);
    return path;
}

} // namespace

FaultRule ParseFaultRule(std::string_view text)
{
    FaultRule rule;
    if (const std::uint32_t ordinal = TakeOrdinal(text)) {
        rule.skip = ordinal - 1;
        rule.times = 1;
    }
    rule.path = TakePath(text);
    rule.faults = ParseFaults(text);
    if (rule.faults.empty()) {
        throw FaultSyntaxError("A rule names at least one fault, as in \"delay=200@/static\".");
    }
    return rule;
}

} // namespace nuqcloud
