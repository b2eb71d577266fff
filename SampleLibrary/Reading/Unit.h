#pragma once

#include <string>

namespace samplelibrary {

/// A unit of measurement.
struct Unit
{
    std::string Key;
    std::string Symbol;      ///< as shown, for example "m³/h"
    std::string Code;        ///< UN/CEFACT recommendation 20 code, empty where that list has none
    std::string DisplayType; ///< display type text of parameters with this unit
    int Decimals = 0;        ///< decimals that make sense for catalogue values
};

} // namespace samplelibrary
