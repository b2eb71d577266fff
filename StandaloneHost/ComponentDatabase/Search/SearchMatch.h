#pragma once

namespace componentdatabase {

/// By what something was found; earlier ones stand further up in a result.
enum class SearchMatch
{
    Code,       ///< The text is the code.
    NamePrefix, ///< A name begins with the text.
    Name,       ///< Every word stands in the names.
    Pinyin,     ///< As above, where some words are the sounds or initials of the Chinese name.
    Value,      ///< Some word stands in a part of the code, the family types' names or the values.
};

} // namespace componentdatabase
