#pragma once

#include "FamilyFiles/Formulas/Quantity.h"

#include <string_view>

namespace familyfiles {

/// A unit that parameters may declare and that formulas may use as a suffix.
struct Unit
{
    std::string_view symbol;
    Quantity quantity;
    /// How many base units one of this unit is.
    double factor;

    double ToBase(double value) const { return value * factor; }
    double FromBase(double value) const { return value / factor; }

    /// The unit with this symbol, in any of its spellings ("m2" and "m²", "um" and "µm"); null when it is not known.
    /// The empty symbol and "-" are those of plain numbers.
    static const Unit* Find(std::string_view symbol);

    /// The base unit of a quantity.
    static const Unit& Base(Quantity quantity);
};

} // namespace familyfiles
