#pragma once

#include "Paths/UrlCache.h"
#include "tarnnuq/PathUtils.h"

#include <QString>

namespace standalone {

/// Says where a thumbnail lies on disk: in the folder "thumbnails" of the cache folder, in a file named by its URL as
/// UrlCache names it.
///
/// Immutable after construction, usable from every thread.
class ThumbnailPaths final : public tarnnuq::PathUtils
{
public:
    /// @param cacheFolder the host's cache folder, absolute; made when the first path is asked for
    explicit ThumbnailPaths(const QString& cacheFolder);

    /// The folder that holds the thumbnails, without a slash at its end.
    QString Folder() const;

    /// The file for a URL, and makes its folder; see UrlCache::PathOf().
    std::wstring DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const override;

private:
    UrlCache m_cache;
};

} // namespace standalone
