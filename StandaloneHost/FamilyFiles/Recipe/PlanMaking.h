#pragma once

#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Recipe/RecipeContent.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

namespace familyfiles {

/// Works out a recipe. @p scope has the values of the parameters and of the recipe's names. Throws RecipeFailure.
ShapePlan MakePlan(const RecipeContent& content, const Scope& scope);

} // namespace familyfiles
