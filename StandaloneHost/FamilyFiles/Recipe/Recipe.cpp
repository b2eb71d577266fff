#include "FamilyFiles/Recipe/Recipe.h"

#include "FamilyFiles/Recipe/ConnectorMaking.h"
#include "FamilyFiles/Recipe/PlanMaking.h"
#include "FamilyFiles/Recipe/RecipeContent.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeReader.h"
#include "FamilyFiles/Recipe/RecipeScope.h"

#include <utility>

namespace familyfiles {

std::optional<Recipe> Recipe::Parse(std::string_view json, const Scope& parameters, Reason& reason)
{
    std::optional<RecipeContent> content = ReadRecipe(json, parameters, reason);
    if (!content) {
        return std::nullopt;
    }
    return Recipe(std::make_unique<RecipeContent>(std::move(*content)));
}

Recipe::Recipe(std::unique_ptr<RecipeContent> content) : m_content(std::move(content)) {}

Recipe::~Recipe() = default;
Recipe::Recipe(Recipe&&) noexcept = default;
Recipe& Recipe::operator=(Recipe&&) noexcept = default;

std::optional<ShapePlan> Recipe::Evaluate(const Scope& parameters, Reason& reason) const
{
    try {
        return MakePlan(*m_content, WithRecipeNames(*m_content, parameters));
    } catch (const RecipeFailure& failure) {
        reason = failure.Why();
        return std::nullopt;
    }
}

std::optional<std::vector<ConnectorMark>> Recipe::EvaluateConnectors(
    const std::vector<Connector>& connectors, const Scope& parameters, Reason& reason) const
{
    try {
        const Scope scope = WithRecipeNames(*m_content, parameters);
        std::vector<ConnectorMark> marks;
        for (const Connector& connector : connectors) {
            marks.push_back(MakeConnector(connector, scope));
        }
        return marks;
    } catch (const RecipeFailure& failure) {
        reason = failure.Why();
        return std::nullopt;
    }
}

} // namespace familyfiles
