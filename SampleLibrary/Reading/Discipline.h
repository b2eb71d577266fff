#pragma once

#include "Reading/BilingualText.h"

#include <string>

namespace samplelibrary {

/// A system of building services, the first level of the category tree.
struct Discipline
{
    int Number = 0;   ///< stable, 10 to 20: the leading digits of category ids
    std::string Code; ///< first part of category codes
    int Major = 0;    ///< 0 plumbing, 1 HVAC, 2 electrical
    BilingualText Name;
    std::string LegendStandard; ///< drawing standard from which the legends are taken
};

} // namespace samplelibrary
