#pragma once

#include "FamilyFiles/Recipe/LoopSamples.h"
#include "FamilyFiles/Recipe/Profile.h"

namespace familyfiles {

/// Makes the outline counter-clockwise. Throws RecipeFailure (geometry.self-intersection) when it crosses or touches
/// itself or has no inside.
void CheckOutline(Loop& outline);

/// Makes the holes counter-clockwise. Throws RecipeFailure (geometry.self-intersection) when a hole is not wholly
/// inside the outline or touches another.
void CheckHoles(Profile& profile);

} // namespace familyfiles
