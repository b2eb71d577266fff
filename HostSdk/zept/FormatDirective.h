#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace zept {

/// One conversion of a format text, from its percent sign to its letter. Reads the text alone, never an argument.
struct FormatDirective
{
    /// Any of "-+ #0", as written.
    std::string flags;
    std::optional<int> width;
    std::optional<int> precision;
    /// "*": the width stands among the arguments.
    bool widthIsArgument = false;
    /// ".*": the precision stands among the arguments.
    bool precisionIsArgument = false;
    /// "hh", "h", "l", "ll", "z", "j", "t", "L" or empty.
    std::string length;
    /// The letter that ends the conversion.
    char letter = '\0';
    /// How many characters of the format the conversion takes.
    std::size_t size = 0;

    /**
     * Reads the conversion at a percent sign.
     *
     * @param percent points at the percent sign of a text that ends with NUL.
     * @return nothing when the text there is no conversion that is known.
     */
    static std::optional<FormatDirective> Parse(const wchar_t* percent);
};

} // namespace zept
