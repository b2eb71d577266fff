#pragma once

#include <QString>

#include <string>

namespace nuq {

/** A column title or field name; the source text is marked with QT_TRANSLATE_NOOP("Titles", ...). UTF-8. */
std::string Title(const char* text);

/** A sentence for people; the source text is marked with QT_TRANSLATE_NOOP("Messages", ...). */
QString Say(const char* text);

/** Yes or no in the user's language. UTF-8. */
std::string YesNo(bool value);

/** A whole number in groups of three digits, for reading. */
std::string Grouped(int number);

} // namespace nuq
