#pragma once

#include "ComponentDatabase/Search/SearchHit.h"

#include <vector>

namespace componentdatabase {

/// The first things found, and how many there are in all.
struct SearchResult
{
    std::vector<SearchHit> hits;
    qint64 total = 0;
};

} // namespace componentdatabase
