#include "Text/PercentEncoding.h"

#include "Text/Utf8.h"

namespace nuqcloud {
namespace {

int HexDigit(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The byte behind "%" at the position, or -1.
int EscapedByte(std::string_view text, std::size_t position)
{
    if (position + 2 >= text.size()) {
        return -1;
    }
    const int high = HexDigit(text[position + 1]);
    const int low = HexDigit(text[position + 2]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

bool IsAlphanumeric(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::optional<std::string> PercentDecode(std::string_view text, PlusSign plus)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            const int byte = EscapedByte(text, i);
            if (byte < 0) {
                return std::nullopt;
            }
            out.push_back(static_cast<char>(byte));
            i += 2;
        } else {
            out.push_back(text[i] == '+' && plus == PlusSign::Blank ? ' ' : text[i]);
        }
    }
    if (out.find('\0') != std::string::npos || !IsValidUtf8(out)) {
        return std::nullopt;
    }
    return out;
}

std::string PercentEncode(std::string_view text, std::string_view keep)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        if (IsAlphanumeric(c) || keep.find(c) != std::string_view::npos) {
            out.push_back(c);
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        out.push_back('%');
        out.push_back(kDigits[byte >> 4U]);
        out.push_back(kDigits[byte & 0x0FU]);
    }
    return out;
}

} // namespace nuqcloud
