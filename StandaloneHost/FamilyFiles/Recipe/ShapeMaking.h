#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/RecipeContent.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// The steps of a plan that an operation which makes a solid stands for, their names and materials still open: one, or
/// two for a flange with a raised face. Empty when @p step combines others.
/// Throws RecipeFailure (without a subject) when the numbers make no sound shape.
std::vector<PlanStep> MakeSolidSteps(const RecipeStep& step, const MemberValues& values);

} // namespace familyfiles
