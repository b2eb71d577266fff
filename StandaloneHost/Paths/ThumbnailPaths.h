#pragma once

#include "tarnnuq/PathUtils.h"

#include <QString>

namespace standalone {

/// Says where a thumbnail lies on disk: in the folder "thumbnails" of the cache folder, in a file named by the
/// SHA-256 of its URL, so that one URL always has the same file and no two share one.
///
/// Immutable after construction, usable from every thread.
class ThumbnailPaths final : public tarnnuq::PathUtils
{
public:
    /// @param cacheFolder the host's cache folder, absolute; made when the first path is asked for
    explicit ThumbnailPaths(const QString& cacheFolder);

    /// The folder that holds the thumbnails, without a slash at its end.
    QString Folder() const;

    /// The file for a URL, and makes its folder. When the folder cannot be made the path is returned all the
    /// same; writing to it then fails.
    /// @param url the URL text as the library uses it; not normalised
    /// @param extension the file's extension with or without its dot, may be empty; only ASCII letters, digits,
    ///        dots, '-' and '_' of it are used, so that it cannot lead out of the folder
    std::wstring DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const override;

private:
    QString m_folder;
};

} // namespace standalone
