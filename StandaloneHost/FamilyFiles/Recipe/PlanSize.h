#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"

namespace familyfiles {

/// Holds a plan to the number of faces and copies that can be worked on in good time, before any of them is made.
/// Throws RecipeFailure (geometry.too-large).
void CheckSize(const ShapePlan& plan);

} // namespace familyfiles
