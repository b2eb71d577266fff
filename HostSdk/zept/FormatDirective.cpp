#include "zept/FormatDirective.h"

#include <limits>
#include <string_view>

namespace zept {

namespace {

constexpr std::string_view LengthLetters = "hlzjtL";
constexpr std::string_view SignedLetters = "di";
constexpr std::string_view UnsignedLetters = "uxXo";
constexpr std::string_view FloatLetters = "fFeEgGaA";

bool Contains(std::string_view letters, wchar_t letter)
{
    return letter > 0 && letter < 0x80 && letters.find(static_cast<char>(letter)) != std::string_view::npos;
}

std::string TakeLetters(const wchar_t*& cursor, std::string_view letters)
{
    std::string taken;
    for (; Contains(letters, *cursor); ++cursor) {
        taken.push_back(static_cast<char>(*cursor));
    }
    return taken;
}

/// Takes the digits at the cursor; false when they name a number beyond int.
bool TakeNumber(const wchar_t*& cursor, std::optional<int>& number)
{
    constexpr int limit = std::numeric_limits<int>::max();
    for (; *cursor >= L'0' && *cursor <= L'9'; ++cursor) {
        const int digit = static_cast<int>(*cursor - L'0');
        const int before = number.value_or(0);
        if (before > (limit - digit) / 10) {
            return false;
        }
        number = before * 10 + digit;
    }
    return true;
}

bool TakeNumberOrStar(const wchar_t*& cursor, std::optional<int>& number, bool& isArgument)
{
    isArgument = *cursor == L'*';
    if (isArgument) {
        ++cursor;
        return true;
    }
    return TakeNumber(cursor, number);
}

bool TakePrecision(const wchar_t*& cursor, FormatDirective& directive)
{
    if (*cursor != L'.') {
        return true;
    }
    ++cursor;
    if (!TakeNumberOrStar(cursor, directive.precision, directive.precisionIsArgument)) {
        return false;
    }
    if (!directive.precisionIsArgument && !directive.precision) {
        directive.precision = 0;
    }
    return true;
}

bool IsPlainPercentSign(const FormatDirective& directive)
{
    return directive.letter == '%' && directive.size == 2;
}

bool IsIntegerLength(const std::string& length)
{
    return length.empty() || length == "hh" || length == "h" || length == "l" || length == "ll" || length == "z" ||
           length == "j" || length == "t";
}

bool IsKnown(const FormatDirective& directive)
{
    const std::string& length = directive.length;
    if (Contains(SignedLetters, directive.letter) || Contains(UnsignedLetters, directive.letter)) {
        return IsIntegerLength(length);
    }
    if (Contains(FloatLetters, directive.letter)) {
        return length.empty() || length == "l" || length == "L";
    }
    switch (directive.letter) {
    case 's':
        return length.empty() || length == "l" || length == "h";
    case 'c':
        return length.empty() || length == "l";
    case 'S':
    case 'C':
    case 'p':
        return length.empty();
    default:
        return IsPlainPercentSign(directive);
    }
}

} // namespace

std::optional<FormatDirective> FormatDirective::Parse(const wchar_t* percent)
{
    FormatDirective directive;
    const wchar_t* cursor = percent + 1;
    directive.flags = TakeLetters(cursor, "-+ #0");
    if (!TakeNumberOrStar(cursor, directive.width, directive.widthIsArgument) || !TakePrecision(cursor, directive)) {
        return std::nullopt;
    }
    directive.length = TakeLetters(cursor, LengthLetters);
    if (*cursor <= 0 || *cursor >= 0x80) {
        return std::nullopt;
    }
    directive.letter = static_cast<char>(*cursor);
    directive.size = static_cast<std::size_t>(cursor + 1 - percent);
    return IsKnown(directive) ? std::optional(directive) : std::nullopt;
}

} // namespace zept
