#pragma once

#include "Paths/ThumbnailPaths.h"

#include <QTemporaryDir>

namespace bench {

/// An empty thumbnail cache, in place of the host's while it lives.
class ThumbnailFolder
{
public:
    ThumbnailFolder();
    ~ThumbnailFolder();
    ThumbnailFolder(const ThumbnailFolder&) = delete;
    ThumbnailFolder& operator=(const ThumbnailFolder&) = delete;

private:
    QTemporaryDir m_folder;
    standalone::ThumbnailPaths m_paths;
};

} // namespace bench
