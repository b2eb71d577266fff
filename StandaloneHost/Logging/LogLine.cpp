#include "Logging/LogLine.h"

#include <algorithm>

namespace standalone {

namespace {

bool IsBetween(ushort code, ushort first, ushort last)
{
    return code >= first && code <= last;
}

/// Line and paragraph separators, and the marks that reorder what is shown.
bool IsInvisibleMark(ushort code)
{
    return IsBetween(code, 0x2028, 0x202e) || IsBetween(code, 0x2066, 0x2069) || code == 0x200e || code == 0x200f;
}

bool IsHarmful(QChar c)
{
    const ushort code = c.unicode();
    return code < 0x20 || IsBetween(code, 0x7f, 0x9f) || IsInvisibleMark(code);
}

QString Escaped(QChar c)
{
    switch (c.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const bool isByte = c.unicode() < 0x100;
    return QLatin1String(isByte ? "\\x" : "\\u") +
           QString::number(c.unicode(), 16).rightJustified(isByte ? 2 : 4, QLatin1Char('0'));
}

} // namespace

QString LogLine(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), IsHarmful)) {
        return text;
    }
    QString line;
    line.reserve(text.size() + 16);
    for (const QChar c : text) {
        if (IsHarmful(c)) {
            line += Escaped(c);
        } else {
            line += c;
        }
    }
    return line;
}

} // namespace standalone
