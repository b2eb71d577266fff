#pragma once

#include <QRegularExpression>
#include <string>

namespace cloudtest {

/// True when the pattern is found in the text.
inline bool Matches(const std::string& text, const std::string& pattern)
{
    return QRegularExpression(QString::fromStdString(pattern)).match(QString::fromStdString(text)).hasMatch();
}

} // namespace cloudtest
