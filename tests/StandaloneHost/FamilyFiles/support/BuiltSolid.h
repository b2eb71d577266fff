#pragma once

#include "FamilyFiles/BuildResult.h"
#include "FamilyFiles/Geometry/OcctKernel.h"
#include "support/RecipeValues.h"

#include <string>

namespace familyfiles::testing {

/// The kernel of all tests.
const OcctKernel& Kernel();

/// Reads, evaluates and builds a recipe; the reason is that of whichever failed.
BuildResult SolidOf(const std::string& recipe, const RecipeParameters& parameters = {});

/// A solid that must be there: fails the test otherwise.
std::unique_ptr<Solid> BuiltSolidOf(const std::string& recipe, const RecipeParameters& parameters = {});

} // namespace familyfiles::testing
