#pragma once

#include <string>

namespace samplelibrary {

/// A display text in both languages of the library, UTF-8.
struct BilingualText
{
    std::string Chinese;
    std::string English;
};

/// The languages in which display texts are written.
enum class Language
{
    Chinese,
    English
};

/// The text of @p both in @p language.
inline const std::string& In(Language language, const BilingualText& both)
{
    return language == Language::Chinese ? both.Chinese : both.English;
}

} // namespace samplelibrary
