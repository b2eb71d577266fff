#include "FamilyFiles/Recipe/RecipeScope.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"

namespace familyfiles {

namespace {

void CopyValue(Scope& scope, const Scope& from, Scope::Slot slot)
{
    if (scope.Kind(slot) == ValueKind::Text) {
        scope.SetText(slot, from.Text(slot));
    } else {
        scope.SetNumber(slot, from.Number(slot));
    }
}

void Compute(Scope& scope, Scope::Slot slot, const Expression& formula, const std::string& name)
{
    Reason reason;
    bool isDone = false;
    if (scope.Kind(slot) == ValueKind::Text) {
        if (std::optional<std::string> text = formula.Text(scope, reason)) {
            scope.SetText(slot, std::move(*text));
            isDone = true;
        }
    } else if (const std::optional<double> number = formula.Number(scope, reason)) {
        scope.SetNumber(slot, *number);
        isDone = true;
    }
    if (!isDone) {
        reason.subject = name;
        throw RecipeFailure(reason);
    }
}

} // namespace

Scope WithRecipeNames(const RecipeContent& content, const Scope& parameters)
{
    Scope scope = content.scope;
    for (Scope::Slot slot = 0; slot < content.parameterCount; ++slot) {
        CopyValue(scope, parameters, slot);
    }
    Scope::Slot slot = content.parameterCount;
    for (const RecipeName& name : content.names) {
        Compute(scope, slot++, content.formulas[name.formula], name.name);
    }
    return scope;
}

} // namespace familyfiles
