#include "Reading/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace samplelibrary {

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.emplace_back(text.substr(0, end));
        if (end == text.size()) {
            return parts;
        }
        text.remove_prefix(end + 1);
        if (text.empty()) {
            parts.emplace_back();
        }
    }
    return parts;
}

std::string Trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::string Lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; });
    return text;
}

std::optional<double> ParsedNumber(std::string_view text)
{
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    if (fault != std::errc() || stop != end) {
        return std::nullopt;
    }
    return value;
}

std::string NumberText(double value, int decimals)
{
    std::array<char, 400> buffer{};
    const auto [end, fault] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    std::string text(buffer.data(), fault == std::errc() ? end : buffer.data());
    if (decimals > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (!text.empty() && text.back() == '.') {
            text.pop_back();
        }
    }
    return text == "-0" ? "0" : text;
}

std::string Replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

} // namespace samplelibrary
