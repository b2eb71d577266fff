#pragma once

#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Recipe/RecipeContent.h"

namespace familyfiles {

/// The values of parameters with those of the recipe's own names behind them. Throws RecipeFailure, its subject the
/// name.
Scope WithRecipeNames(const RecipeContent& content, const Scope& parameters);

} // namespace familyfiles
