#pragma once

#include "Reading/BilingualText.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace samplelibrary {

/// One allowed value of an enumeration.
struct EnumerationEntry
{
    BilingualText Name;
    std::vector<std::pair<std::string, double>> Numbers; ///< properties for formulas, such as a material's density
};

/// Allowed values by their stored key.
using Enumeration = std::map<std::string, EnumerationEntry>;

} // namespace samplelibrary
