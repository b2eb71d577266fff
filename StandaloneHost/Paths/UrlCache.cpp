#include "Paths/UrlCache.h"

#include "Paths/PrivateFolder.h"
#include "Paths/ReplaceFile.h"

#include <QCryptographicHash>
#include <QFile>

namespace standalone {

namespace {

bool IsPlain(QChar c)
{
    return c.unicode() < 0x80 &&
           (c.isLetterOrNumber() || c == QLatin1Char('.') || c == QLatin1Char('-') || c == QLatin1Char('_'));
}

/// ".png" for "png" and ".png"; empty for an extension of which nothing is left.
QString Suffix(const QString& extension)
{
    QString plain;
    for (const QChar c : extension) {
        if (IsPlain(c) && !(plain.isEmpty() && c == QLatin1Char('.'))) {
            plain += c;
        }
    }
    return plain.isEmpty() ? plain : QLatin1Char('.') + plain;
}

QString HashOf(const QString& url)
{
    return QString::fromLatin1(QCryptographicHash::hash(url.toUtf8(), QCryptographicHash::Sha256).toHex());
}

} // namespace

UrlCache::UrlCache(const QString& folder) : m_folder(folder) {}

const QString& UrlCache::Folder() const
{
    return m_folder;
}

QString UrlCache::PathOf(const QString& url, const QString& extension) const
{
    MakePrivateFolder(m_folder);
    return m_folder + QLatin1Char('/') + HashOf(url) + Suffix(extension);
}

QString UrlCache::Store(const QString& url, const QString& extension, const QByteArray& content) const
{
    return ReplaceFile(PathOf(url, extension), content);
}

std::optional<QByteArray> UrlCache::Read(const QString& url, const QString& extension) const
{
    QFile file(PathOf(url, extension));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

} // namespace standalone
