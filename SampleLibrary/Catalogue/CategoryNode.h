#pragma once

#include "Reading/BilingualText.h"

#include <cstddef>
#include <string>

namespace samplelibrary {

/// A node of the category tree: a discipline, an element kind within it, or an end category.
struct CategoryNode
{
    int Id = 0;
    std::string Code;
    int ParentId = 0;
    std::string ParentCode;
    int Level = 0;               ///< 0 discipline, 1 element kind, 2 end category
    std::size_t Discipline = 0;  ///< index into the source's disciplines
    std::size_t Kind = 0;        ///< index into the source's kinds; only below level 0
    std::size_t EndCategory = 0; ///< index into the source's end categories; only at level 2
    BilingualText Name;
    std::string ComponentIdStem; ///< beginning of its components' ids; only at level 2
    std::size_t FirstPosition = 0;
    std::size_t ComponentCount = 0; ///< in it and below
};

} // namespace samplelibrary
