#pragma once

#include "FamilyFiles/Recipe/RecipeValue.h"

#include <string>

namespace familyfiles {

/// Holds a number to what its kind allows. Throws RecipeFailure: geometry.not-finite, .out-of-range.
void CheckNumber(double number, NumberKind kind, const std::string& member);

/// The number as a person reads it.
std::string NumberText(double number);

} // namespace familyfiles
