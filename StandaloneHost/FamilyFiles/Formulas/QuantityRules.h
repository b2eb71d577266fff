#pragma once

#include "FamilyFiles/Formulas/Quantity.h"

#include <optional>

namespace familyfiles {

/// What two numbers measure that are added, compared or chosen from; nothing when they do not go together.
std::optional<Quantity> Joined(Quantity left, Quantity right);

/// What a product, quotient or power measures. Only what keeps to base units is more than a plain number: a velocity
/// times an area is a flow too, but not in the base unit of flows.
Quantity ProductOf(Quantity left, Quantity right);
Quantity QuotientOf(Quantity left, Quantity right);
Quantity PowerOf(Quantity base, double exponent);

} // namespace familyfiles
