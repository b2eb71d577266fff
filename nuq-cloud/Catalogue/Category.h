#pragma once

#include "Catalogue/PositionRange.h"

#include <cstdint>
#include <string>

namespace nuqcloud {

/// One category of the tree, as the catalogue keeps it.
struct Category
{
    std::int64_t id = 0;
    std::string code;
    std::int64_t parentId = 0;
    std::string parentCode;
    int major = 0;
    std::string nameZh;
    std::string nameEn;
    double weight = 0.0;
    PositionRange components; ///< those in it and below
};

} // namespace nuqcloud
