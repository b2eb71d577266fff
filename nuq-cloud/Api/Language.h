#pragma once

#include "Catalogue/Records.h"

#include <string>
#include <string_view>

namespace nuqcloud {

/// The two languages that the catalogue has names in.
enum class Language
{
    English,
    Chinese
};

/// The language that an Accept-Language value prefers: Chinese when its best-weighted known language is one of the
/// "zh" ones, English otherwise.
Language PreferredLanguage(std::string_view acceptLanguage);

/// The text in that language.
inline const std::string& In(Language language, const BilingualText& text)
{
    return language == Language::Chinese ? text.zh : text.en;
}

} // namespace nuqcloud
