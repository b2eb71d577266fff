#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace nuqcloud {

/// Serves the files below one folder, with entity tags and single byte ranges. Safe for many threads.
class StaticFiles
{
public:
    explicit StaticFiles(std::filesystem::path folder);

    /// @param segments decoded parts of the path below the folder; none of them can lead out of it
    HttpReply Get(const HttpRequest& request, const std::vector<std::string>& segments) const;

private:
    const std::filesystem::path m_folder;
};

} // namespace nuqcloud
