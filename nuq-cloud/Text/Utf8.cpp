#include "Text/Utf8.h"

#include <cstdint>

namespace nuqcloud {
namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

std::size_t SequenceLength(unsigned char lead)
{
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool IsOverlongOrForbidden(char32_t point, std::size_t length)
{
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    return surrogate || overlong || point > 0x10FFFF;
}

/// Reads one code point and moves the position behind it; kInvalid leaves the position untouched.
char32_t DecodeNext(std::string_view bytes, std::size_t& position)
{
    const auto lead = static_cast<unsigned char>(bytes[position]);
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || position + length > bytes.size()) {
        return kInvalid;
    }
    char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[position + i]);
        if ((next & 0xC0U) != 0x80) {
            return kInvalid;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    if (IsOverlongOrForbidden(point, length)) {
        return kInvalid;
    }
    position += length;
    return point;
}

void AppendUtf8(std::string& out, char32_t point)
{
    if (point < 0x80) {
        out.push_back(static_cast<char>(point));
    } else if (point < 0x800) {
        out.push_back(static_cast<char>(0xC0U | (point >> 6U)));
        out.push_back(static_cast<char>(0x80U | (point & 0x3FU)));
    } else if (point < 0x10000) {
        out.push_back(static_cast<char>(0xE0U | (point >> 12U)));
        out.push_back(static_cast<char>(0x80U | ((point >> 6U) & 0x3FU)));
        out.push_back(static_cast<char>(0x80U | (point & 0x3FU)));
    } else {
        out.push_back(static_cast<char>(0xF0U | (point >> 18U)));
        out.push_back(static_cast<char>(0x80U | ((point >> 12U) & 0x3FU)));
        out.push_back(static_cast<char>(0x80U | ((point >> 6U) & 0x3FU)));
        out.push_back(static_cast<char>(0x80U | (point & 0x3FU)));
    }
}

bool IsBetween(char32_t point, char32_t first, char32_t last)
{
    return point >= first && point <= last;
}

/// Blocks whose capitals lie a fixed distance below their small letters.
char32_t ToLowerByDistance(char32_t point)
{
    const bool latin1 = IsBetween(point, 0xC0, 0xDE) && point != 0xD7;
    const bool greek = IsBetween(point, 0x391, 0x3A9) && point != 0x3A2;
    const bool fullWidth = IsBetween(point, 0xFF21, 0xFF3A);
    const bool cyrillic = IsBetween(point, 0x410, 0x42F);
    if (IsBetween(point, U'A', U'Z') || latin1 || greek || fullWidth || cyrillic) {
        return point + 32;
    }
    return IsBetween(point, 0x400, 0x40F) ? point + 80 : point;
}

} // namespace

bool IsValidUtf8(std::string_view bytes)
{
    for (std::size_t position = 0; position < bytes.size();) {
        if (DecodeNext(bytes, position) == kInvalid) {
            return false;
        }
    }
    return true;
}

std::size_t CodePointCount(std::string_view text)
{
    std::size_t count = 0;
    for (const char c : text) {
        count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80 ? 1 : 0;
    }
    return count;
}

std::string ToLower(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t point = DecodeNext(text, position);
        if (point == kInvalid) {
            out.push_back(text[position++]);
        } else {
            AppendUtf8(out, ToLowerByDistance(point));
        }
    }
    return out;
}

} // namespace nuqcloud
