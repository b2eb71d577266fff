#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Manifest/Connector.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace familyfiles {

struct RecipeContent;

/// How the geometry of a family is made from its parameters: steps whose numbers are formulas.
///
/// Reading checks the structure and compiles the formulas; evaluating works out the numbers and holds each to its
/// bounds. Neither makes any geometry, neither throws. Not for use by several threads at once.
class Recipe
{
public:
    /// @param json the recipe's text
    /// @param parameters the names of the family's parameters; values do not count
    /// @return nothing with a reason: recipe.… or formula.…; the subject is the step or name concerned
    static std::optional<Recipe> Parse(std::string_view json, const Scope& parameters, Reason& reason);

    ~Recipe();
    Recipe(Recipe&&) noexcept;
    Recipe& operator=(Recipe&&) noexcept;

    /// The steps with all their numbers.
    /// @param parameters values in the slots of the scope that was given to Parse
    /// @return nothing with a reason: geometry.require, .not-finite, .out-of-range, .wall, .self-intersection, .failed,
    ///         .empty, .too-large, recipe.too-many or formula.…
    std::optional<ShapePlan> Evaluate(const Scope& parameters, Reason& reason) const;

    /// Where others are connected. Formulas may use the names that the recipe introduces.
    /// @return nothing with a reason; the subject is the connector's name
    std::optional<std::vector<ConnectorMark>> EvaluateConnectors(
        const std::vector<Connector>& connectors, const Scope& parameters, Reason& reason) const;

private:
    explicit Recipe(std::unique_ptr<RecipeContent> content);

    std::unique_ptr<RecipeContent> m_content;
};

} // namespace familyfiles
