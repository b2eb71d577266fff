#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// A disc with a bore and bolt holes, and the raised face in front of it if there is one. Throws RecipeFailure.
std::vector<PlanStep> MakeFlange(const RecipeValue& members, const MemberValues& values);

} // namespace familyfiles
