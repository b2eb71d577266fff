#pragma once

#include <string>
#include <string_view>

namespace nuq {

/**
 * How many columns a UTF-8 text takes in a terminal: East Asian wide characters two, combining ones none.
 *
 * By Unicode data, not by the C library's locale, so that it is right under LC_ALL=C too. REQUIRES: no control
 * characters (VisibleText).
 */
int TextWidth(std::string_view text);

/** The text cut to at most `width` columns, with "…" at its end when something is missing. REQUIRES: width >= 1 */
std::string CutToWidth(std::string_view text, int width);

} // namespace nuq
