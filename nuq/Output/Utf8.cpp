#include "Output/Utf8.h"

namespace nuq {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsSurrogate(char32_t codePoint)
{
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

} // namespace

void AppendUtf8(std::string& text, char32_t codePoint)
{
    if (IsSurrogate(codePoint) || codePoint > 0x10FFFF)
        codePoint = kReplacement;
    const auto tail = [codePoint](int shift) { return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F)); };
    const auto head = [codePoint](char32_t mark, int shift) { return static_cast<char>(mark | (codePoint >> shift)); };
    if (codePoint < 0x80)
        text += static_cast<char>(codePoint);
    else if (codePoint < 0x800)
        text.append({head(0xC0, 6), tail(0)});
    else if (codePoint < 0x10000)
        text.append({head(0xE0, 12), tail(6), tail(0)});
    else
        text.append({head(0xF0, 18), tail(12), tail(6), tail(0)});
}

char32_t NextCodePoint(std::wstring_view text, std::size_t& at)
{
    const auto unit = static_cast<char32_t>(text[at++]);
    if constexpr (sizeof(wchar_t) == 2) {
        const char32_t low = at < text.size() ? static_cast<char32_t>(text[at]) : 0;
        if (unit >= 0xD800 && unit <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF) {
            ++at;
            return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    return unit;
}

std::string ToUtf8(std::wstring_view text)
{
    std::string result;
    result.reserve(text.size() * 3);
    for (std::size_t at = 0; at < text.size();)
        AppendUtf8(result, NextCodePoint(text, at));
    return result;
}

} // namespace nuq
