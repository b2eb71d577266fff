#pragma once

#include <string>
#include <string_view>

namespace familyfiles {

/// A text from a file as it can stand in a message: cut after @p maximum characters, with an ellipsis, control
/// characters as blanks and bytes that are no UTF-8 as question marks.
std::string ShortText(std::string_view text, std::size_t maximum = 60);

} // namespace familyfiles
