#include "Http/ByteRange.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace nuqcloud {
namespace {

std::optional<std::size_t> Number(std::string_view text)
{
    std::size_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

ByteRange Part(std::size_t first, std::size_t length)
{
    return {ByteRange::Kind::Part, first, length};
}

ByteRange Suffix(std::size_t wanted, std::size_t size)
{
    if (wanted == 0 || size == 0) {
        return {ByteRange::Kind::Unsatisfiable, 0, 0};
    }
    const std::size_t length = std::min(wanted, size);
    return Part(size - length, length);
}

} // namespace

ByteRange ChooseRange(std::string_view header, std::size_t size)
{
    constexpr std::string_view kUnit = "bytes=";
    const ByteRange whole{ByteRange::Kind::Whole, 0, size};
    if (header.substr(0, kUnit.size()) != kUnit) {
        return whole;
    }
    const std::string_view text = header.substr(kUnit.size());
    const std::size_t hyphen = text.find('-');
    if (hyphen == std::string_view::npos) {
        return whole;
    }
    const auto first = Number(text.substr(0, hyphen));
    const auto last = Number(text.substr(hyphen + 1));
    if (!first) {
        return hyphen == 0 && last ? Suffix(*last, size) : whole;
    }
    const bool open = hyphen + 1 == text.size();
    if ((!last && !open) || (last && *last < *first)) {
        return whole;
    }
    if (*first >= size) {
        return {ByteRange::Kind::Unsatisfiable, 0, 0};
    }
    return Part(*first, std::min(last.value_or(size - 1), size - 1) - *first + 1);
}

} // namespace nuqcloud
