#pragma once

#include "HostSdkExport.h"

#include <string>

namespace tarnnuq {

/**
 * Where the library puts the files it downloads.
 *
 * Implemented by the host and put into hostsdk::HostServices::paths; the host owns it.
 */
class HOSTSDK_EXPORT PathUtils
{
public:
    virtual ~PathUtils();
    PathUtils(const PathUtils&) = delete;
    PathUtils& operator=(const PathUtils&) = delete;

    /**
     * The full path of the file that caches a thumbnail.
     *
     * Stable for one URL, distinct for distinct URLs, and its folder exists when the call returns (unless it cannot be
     * made). Without an installed object: the folder "thumbnails" of the application's cache folder, and in it the
     * SHA-256 of the URL's UTF-8 bytes in lower-case hexadecimal digits followed by the extension.
     *
     * @param url the thumbnail's address, exactly as it is requested.
     * @param extension the file name's ending with its dot, for example ".png".
     */
    static std::wstring GetThumbnailDownloadFilePath(std::wstring url, std::wstring extension);

protected:
    PathUtils() = default;

    /// Answers GetThumbnailDownloadFilePath(), and makes the folder.
    virtual std::wstring DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const = 0;
};

} // namespace tarnnuq
