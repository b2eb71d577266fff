#include "FamilyFiles/Formulas/QuantityRules.h"

namespace familyfiles {

namespace {

/// The dimension of length; 0 for all that is not one of length, area and volume.
int Dimension(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Length:
        return 1;
    case Quantity::Area:
        return 2;
    case Quantity::Volume:
        return 3;
    default:
        return 0;
    }
}

Quantity OfDimension(int dimension)
{
    switch (dimension) {
    case 1:
        return Quantity::Length;
    case 2:
        return Quantity::Area;
    case 3:
        return Quantity::Volume;
    default:
        return Quantity::Plain;
    }
}

} // namespace

std::optional<Quantity> Joined(Quantity left, Quantity right)
{
    if (left == right || right == Quantity::Plain) {
        return left;
    }
    return left == Quantity::Plain ? std::optional<Quantity>(right) : std::nullopt;
}

Quantity ProductOf(Quantity left, Quantity right)
{
    if (left == Quantity::Plain || right == Quantity::Plain) {
        return left == Quantity::Plain ? right : left;
    }
    const bool areSpatial = Dimension(left) > 0 && Dimension(right) > 0;
    return areSpatial ? OfDimension(Dimension(left) + Dimension(right)) : Quantity::Plain;
}

Quantity QuotientOf(Quantity left, Quantity right)
{
    if (right == Quantity::Plain) {
        return left;
    }
    const bool areSpatial = Dimension(left) > 0 && Dimension(right) > 0;
    return areSpatial ? OfDimension(Dimension(left) - Dimension(right)) : Quantity::Plain;
}

Quantity PowerOf(Quantity base, double exponent)
{
    if (exponent == 1.0) {
        return base;
    }
    for (int dimension = 1; dimension <= 3; ++dimension) {
        if (Dimension(base) * exponent == dimension) {
            return OfDimension(dimension);
        }
    }
    return Quantity::Plain;
}

} // namespace familyfiles
