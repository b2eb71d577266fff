#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace familyfiles {

/// One character of a UTF-8 text.
struct Utf8Character
{
    /// U+FFFD where the bytes are no character.
    char32_t code;
    /// How many bytes it takes; at least 1.
    std::size_t size;
    bool isValid;
};

/// The character at @p position. Overlong forms, surrogates and what is beyond U+10FFFF are no characters.
/// REQUIRES: position < text.size()
Utf8Character Utf8At(std::string_view text, std::size_t position);

bool IsUtf8(std::string_view text);

/// How many characters stand before byte @p position.
std::size_t CharactersBefore(std::string_view text, std::size_t position);

/// The same text as the host's interface has it, and back. Bytes that are no UTF-8 become U+FFFD.
std::wstring WideText(std::string_view utf8);
std::string Utf8Text(const std::wstring& wide);

} // namespace familyfiles
