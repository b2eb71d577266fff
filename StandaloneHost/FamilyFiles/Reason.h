#pragma once

#include <string>

namespace familyfiles {

/// Why something was refused, for programs and for people. Texts are UTF-8.
///
/// A function that can fail takes one by reference and fills it when it fails; it is left alone on success.
struct Reason
{
    /// Stable and short, for programs: the area, a full stop, what is wrong, as in "formula.cycle". Empty: no reason.
    std::string code;
    /// The parameter, recipe step or container entry concerned, by its name in the file; may be empty.
    std::string subject;
    /// One sentence, the subject's name included.
    std::string english;
    std::string chinese;
    /// The value that was wanted and what would have been possible, with their unit, where it was about a value.
    std::string wanted = {};
    std::string possible = {};

    /// True when something was refused.
    explicit operator bool() const { return !code.empty(); }
};

} // namespace familyfiles
