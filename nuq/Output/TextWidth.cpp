#include "Output/TextWidth.h"

#include <utf8proc.h>

#include <algorithm>

namespace nuq {
namespace {

struct Character
{
    std::size_t bytes;
    int width;
};

/// The length of a colour sequence (ESC [ ... letter) that begins here; 0 when none does.
std::size_t SequenceAt(std::string_view text, std::size_t at)
{
    if (text.substr(at, 2) != "\033[")
        return 0;
    const std::size_t end = text.find_first_not_of("0123456789;", at + 2);
    return end == std::string_view::npos ? text.size() - at : end + 1 - at;
}

Character CharacterAt(std::string_view text, std::size_t at)
{
    if (const std::size_t bytes = SequenceAt(text, at))
        return {bytes, 0};
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at);
    utf8proc_int32_t codePoint = 0;
    const auto length = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size() - at), &codePoint);
    if (length <= 0)
        return {1, 1};
    return {static_cast<std::size_t>(length), utf8proc_charwidth(codePoint)};
}

} // namespace

int TextWidth(std::string_view text)
{
    int width = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        width += character.width;
        at += character.bytes;
    }
    return width;
}

std::string CutToWidth(std::string_view text, int width)
{
    if (TextWidth(text) <= width)
        return std::string(text);
    int used = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        const Character character = CharacterAt(text, at);
        if (used + character.width > width - 1)
            break;
        used += character.width;
        at += character.bytes;
    }
    return std::string(text.substr(0, at)) + "…";
}

} // namespace nuq
