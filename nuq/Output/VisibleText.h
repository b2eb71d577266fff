#pragma once

#include <string>
#include <string_view>

class QString;

namespace nuq {

/**
 * A text from outside as it may be shown in a terminal, as UTF-8.
 *
 * Control characters, line ends, and the invisible characters that turn the writing direction are shown as escapes
 * (\n, \x1b, \u202e), so that a name from the server can neither move the cursor nor pose as another name.
 */
std::string VisibleText(std::wstring_view text);
std::string VisibleText(const QString& text);

} // namespace nuq
