#include "Paths/ThumbnailPaths.h"

#include "Paths/PrivateFolder.h"

#include <QCryptographicHash>

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

ThumbnailPaths::ThumbnailPaths(const QString& cacheFolder) : m_folder(cacheFolder + QStringLiteral("/thumbnails")) {}

QString ThumbnailPaths::Folder() const
{
    return m_folder;
}

std::wstring ThumbnailPaths::DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const
{
    MakePrivateFolder(m_folder);
    const QString name = HashOf(QString::fromStdWString(url)) + Suffix(QString::fromStdWString(extension));
    return (m_folder + QLatin1Char('/') + name).toStdWString();
}

} // namespace standalone
