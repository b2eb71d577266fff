#include "Paths/ThumbnailPaths.h"

namespace standalone {

ThumbnailPaths::ThumbnailPaths(const QString& cacheFolder) : m_cache(cacheFolder + QStringLiteral("/thumbnails")) {}

QString ThumbnailPaths::Folder() const
{
    return m_cache.Folder();
}

std::wstring ThumbnailPaths::DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const
{
    return m_cache.PathOf(QString::fromStdWString(url), QString::fromStdWString(extension)).toStdWString();
}

} // namespace standalone
