#pragma once

#include "Reading/BilingualText.h"

#include <string>
#include <vector>

namespace samplelibrary {

/// One component as the catalogue holds it.
struct ComponentRow
{
    std::string Id;
    int Version = 1;
    BilingualText Name;
    std::string Status;
    std::string FamilyTypes;            ///< JSON as in the catalogue's column
    std::vector<std::string> TypeNames; ///< in the order of FamilyTypes
};

} // namespace samplelibrary
