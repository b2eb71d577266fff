#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// The words of a keyword as they are looked for: lower-cased, split at blanks (the ideographic one too).
/// A keyword of blanks alone has none and is no keyword.
std::vector<std::string> KeywordWords(std::string_view keyword);

} // namespace nuqcloud
