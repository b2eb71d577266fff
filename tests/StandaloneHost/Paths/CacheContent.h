#pragma once

#include <QByteArray>
#include <QString>

/// What the processes of the cache tests write: a line that names the length, and as many equal letters, so that a
/// reader can tell a whole content from a cut or a mixed one.
inline QByteArray CacheContent(char letter, int length)
{
    return QByteArray::number(length) + '\n' + QByteArray(length, letter);
}

inline bool IsWholeCacheContent(const QByteArray& content)
{
    const int lineEnd = content.indexOf('\n');
    const QByteArray letters = content.mid(lineEnd + 1);
    return lineEnd > 0 && letters.size() == content.left(lineEnd).toInt() &&
           letters == QByteArray(letters.size(), letters.isEmpty() ? ' ' : letters.at(0));
}

constexpr int CacheUrlCount = 4;

inline QString CacheUrl(int number)
{
    return QStringLiteral("http://h/水泵 %1.png").arg(number % CacheUrlCount);
}
