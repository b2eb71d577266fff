#pragma once

#include <cstddef>

namespace samplelibrary {

/// What a build did.
struct BuildResult
{
    bool WasUpToDate = false;
    std::size_t Components = 0;
    std::size_t Categories = 0;
};

} // namespace samplelibrary
