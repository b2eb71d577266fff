#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"
#include "Server/ContentDigests.h"

#include <filesystem>
#include <string>
#include <vector>

namespace nuqcloud {

/// Serves the files below one folder: pictures, drawings and family files. Each reply carries an entity tag, so that an
/// unchanged file is not sent again, and the digest of the whole file; a download that was cut goes on where it ended
/// by a byte range. Safe for many threads.
class StaticFiles
{
public:
    explicit StaticFiles(std::filesystem::path folder);

    /// @param segments decoded parts of the path below the folder; none of them can lead out of it
    HttpReply Get(const HttpRequest& request, const std::vector<std::string>& segments) const;

private:
    const std::filesystem::path m_folder;
    mutable ContentDigests m_digests;
};

} // namespace nuqcloud
