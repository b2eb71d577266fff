#pragma once

#include "FamilyFiles/Formulas/Expression.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Manifest/BilingualText.h"
#include "FamilyFiles/Recipe/RecipeRules.h"
#include "FamilyFiles/Recipe/RecipeValue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// A name that a recipe introduces.
struct RecipeName
{
    std::string name;
    std::size_t formula = 0;
};

/// A condition that parameters must fulfil before anything is made.
struct RecipeRequirement
{
    std::size_t formula = 0;
    BilingualText text;
};

/// A step in the order of making; inline steps stand before the step that they are part of.
struct RecipeStep
{
    std::string name; ///< its id, or its number and operation
    const ObjectRule* rule = nullptr;
    RecipeValue members;
};

/// A recipe as it was read: its formulas compiled, its references found, its members known ones.
struct RecipeContent
{
    Scope scope; ///< the family's parameters, then the recipe's own names
    std::size_t parameterCount = 0;
    std::vector<Expression> formulas;
    std::vector<RecipeName> names;
    std::vector<RecipeRequirement> requirements;
    std::vector<RecipeStep> steps;
    std::size_t result = 0;
    RecipeValue solidCount;
    RecipeValue camera; ///< a word or three numbers
    std::string material;
    std::vector<RecipeValue> centreLines;
};

} // namespace familyfiles
