#pragma once

#include <string>

namespace familyfiles {

/// A text for people in both languages, UTF-8. Either may be empty.
struct BilingualText
{
    std::string chinese;
    std::string english;
    /// Members that this version does not know, as the text of a JSON object; empty when there are none.
    std::string extra = {};
};

} // namespace familyfiles
