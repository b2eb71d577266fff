#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nuqcloud {

/// True when the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view bytes);

/// Number of code points of a valid UTF-8 text.
std::size_t CodePointCount(std::string_view text);

/// Lower-cases ASCII, Latin, Greek, Cyrillic and full-width letters of a valid UTF-8 text; the rest stays as it is.
std::string ToLower(std::string_view text);

} // namespace nuqcloud
