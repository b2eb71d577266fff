#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nuqcloud {

/// How a plus sign reads: a blank in a query (the form convention), itself in a path.
enum class PlusSign
{
    Literal,
    Blank
};

/// Undoes percent-encoding. Empty when a "%" is not followed by two hexadecimal digits, or when the outcome
/// holds a NUL or is not UTF-8.
std::optional<std::string> PercentDecode(std::string_view text, PlusSign plus);

/// Encodes everything but letters, digits and the given further characters.
std::string PercentEncode(std::string_view text, std::string_view keep);

} // namespace nuqcloud
