#pragma once

#include <string>

namespace familyfiles {

/// A text for people in both languages, UTF-8. Either may be empty.
struct BilingualText
{
    std::string chinese;
    std::string english;
};

} // namespace familyfiles
