#include "Accounts/TokenText.h"

#include <algorithm>

namespace standalone {

namespace {

constexpr int kLongestToken = 8192;

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool BreaksHeader(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f || c == QChar::ReplacementCharacter;
}

} // namespace

QString TokenFromBytes(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    while (!bytes.isEmpty() && IsLineEnd(bytes.back())) {
        bytes.chop(1);
    }
    // With the size: without it Qt stops at a NUL, and a damaged file would pass for a short token.
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

QString TokenFault(const QString& token)
{
    if (token.isEmpty()) {
        return QStringLiteral("it holds no token");
    }
    if (token.size() > kLongestToken) {
        return QStringLiteral("it is longer than %1 characters").arg(kLongestToken);
    }
    if (std::any_of(token.begin(), token.end(), BreaksHeader)) {
        return QStringLiteral("it is not one line of UTF-8 text");
    }
    return {};
}

} // namespace standalone
