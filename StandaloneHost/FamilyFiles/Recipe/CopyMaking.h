#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/RecipeContent.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// The motions of each copy that a mirror, pattern or transform makes. Throws RecipeFailure.
std::vector<std::vector<Motion>> MakeMotions(const RecipeStep& step, const MemberValues& values);

} // namespace familyfiles
