#pragma once

#include <string>
#include <string_view>

namespace nuq {

/** Appends one code point as UTF-8; surrogates and values beyond Unicode become U+FFFD. */
void AppendUtf8(std::string& text, char32_t codePoint);

/**
 * The code point at a place of a wide text, whether wchar_t holds UTF-16 or UTF-32.
 * @param at moved behind it; REQUIRES: at < text.size()
 */
char32_t NextCodePoint(std::wstring_view text, std::size_t& at);

/** A wide text as UTF-8. */
std::string ToUtf8(std::wstring_view text);

} // namespace nuq
