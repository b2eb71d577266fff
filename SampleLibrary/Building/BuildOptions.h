#pragma once

#include <QString>
#include <cstddef>

namespace samplelibrary {

/// What library is to be built, and how.
struct BuildOptions
{
    QString Folder;                ///< where the library is to stand
    std::size_t Components = 0;    ///< number of components; 0: as many as the source describes without further series
    std::size_t EndCategories = 0; ///< number of end categories; 0: those of the source
    std::size_t Jobs = 1;          ///< number of threads
    bool IsForced = false;         ///< build even when the library is up to date
};

} // namespace samplelibrary
