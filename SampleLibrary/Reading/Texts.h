#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace samplelibrary {

/// The parts of @p text between the @p separator characters; an empty text has no parts.
std::vector<std::string> Split(std::string_view text, char separator);

/// @p text without blanks at both ends.
std::string Trimmed(std::string_view text);

/// @p text with A to Z as a to z; other characters stay.
std::string Lowered(std::string text);

/// The number that the whole of @p text says, with "." as decimal point whatever the locale; nothing when it says none.
std::optional<double> ParsedNumber(std::string_view text);

/// @p value with at most @p decimals decimals, without trailing zeros, with "." as decimal point whatever the locale.
std::string NumberText(double value, int decimals);

/// @p text with every @p from replaced by @p to.
std::string Replaced(std::string text, std::string_view from, std::string_view to);

} // namespace samplelibrary
