#pragma once

#include "Reading/BilingualText.h"
#include "Reading/ProductLine.h"

#include <cstddef>
#include <string>

namespace samplelibrary {

/// A leaf of the category tree as the source describes it.
struct EndCategory
{
    std::string Where;          ///< file and line, for messages
    std::size_t Discipline = 0; ///< index into the source's disciplines
    std::size_t Kind = 0;       ///< index into the source's kinds
    std::string Code;           ///< last part of the category code
    std::string PredefinedType; ///< that of ISO 16739-1, or "USERDEFINED"
    BilingualText Name;
    ProductLine Line;
};

} // namespace samplelibrary
