#pragma once

#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Recipe/Recipe.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace familyfiles::testing {

/// Parameters by name: numbers, then texts.
struct RecipeParameters
{
    std::vector<std::pair<std::string, double>> numbers;
    std::vector<std::pair<std::string, std::string>> texts;
};

/// A scope with the parameters and their values.
Scope ScopeOf(const RecipeParameters& parameters);

/// A plan, or why there is none.
struct PlanOutcome
{
    std::optional<ShapePlan> plan;
    Reason reason;
};

/// Reads a recipe and works out its numbers.
PlanOutcome PlanOf(const std::string& recipe, const RecipeParameters& parameters = {});

/// A recipe of one line of steps in JSON.
std::string RecipeOf(const std::string& steps);

} // namespace familyfiles::testing
