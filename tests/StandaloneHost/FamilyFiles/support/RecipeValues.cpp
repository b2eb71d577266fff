#include "support/RecipeValues.h"

namespace familyfiles::testing {

Scope ScopeOf(const RecipeParameters& parameters)
{
    Scope scope;
    for (const auto& [name, value] : parameters.numbers) {
        scope.SetNumber(*scope.Add(name, ValueKind::Number), value);
    }
    for (const auto& [name, value] : parameters.texts) {
        scope.SetText(*scope.Add(name, ValueKind::Text), value);
    }
    return scope;
}

PlanOutcome PlanOf(const std::string& recipe, const RecipeParameters& parameters)
{
    PlanOutcome outcome;
    const Scope scope = ScopeOf(parameters);
    const std::optional<Recipe> read = Recipe::Parse(recipe, scope, outcome.reason);
    if (read) {
        outcome.plan = read->Evaluate(scope, outcome.reason);
    }
    return outcome;
}

std::string RecipeOf(const std::string& steps)
{
    return "{\"steps\": [" + steps + "]}";
}

} // namespace familyfiles::testing
