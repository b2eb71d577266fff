#pragma once

#include "support/NamedCase.h"

#include <array>
#include <string>
#include <vector>

namespace familyfiles::testing {

/// A recipe whose solid can be measured by hand.
struct MeasuredRecipe : testsupport::NamedCase
{
    std::string recipe;
    double volume;             ///< mm³
    double area;               ///< mm²
    std::array<double, 6> box; ///< least x, y, z, then greatest
    double precision = 1e-6;   ///< relative; larger where the kernel approximates surfaces
};

/// Recipes of every operation with their closed-form measures.
const std::vector<MeasuredRecipe>& MeasuredRecipes();

} // namespace familyfiles::testing
