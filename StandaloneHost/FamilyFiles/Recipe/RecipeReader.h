#pragma once

#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Recipe/RecipeContent.h"

#include <optional>
#include <string_view>

namespace familyfiles {

/// Reads the text of a recipe.
///
/// @param parameters the names of the family's parameters
/// @return nothing with a reason: recipe.… or formula.…; the subject is the step
std::optional<RecipeContent> ReadRecipe(std::string_view json, const Scope& parameters, Reason& reason);

} // namespace familyfiles
