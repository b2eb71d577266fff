#include "Commands/Texts.h"

#include <QCoreApplication>

namespace nuq {

std::string Title(const char* text)
{
    return QCoreApplication::translate("Titles", text).toStdString();
}

QString Say(const char* text)
{
    return QCoreApplication::translate("Messages", text);
}

std::string YesNo(bool value)
{
    return value ? Title(QT_TRANSLATE_NOOP("Titles", "yes")) : Title(QT_TRANSLATE_NOOP("Titles", "no"));
}

std::string Grouped(int number)
{
    std::string digits = std::to_string(number);
    // A blank groups in every language of the program and is no decimal sign in any.
    for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > (number < 0 ? 1 : 0); at -= 3)
        digits.insert(static_cast<std::size_t>(at), " ");
    return digits;
}

} // namespace nuq
