#pragma once

#include "FamilyFiles/BuildResult.h"
#include "FamilyFiles/Formulas/FormulaSet.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Recipe/Recipe.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

class BuildProgress;

/// A family ready to be worked with: what its manifest says, its formulas in order, its recipe.
///
/// Values are those of all parameters, in the manifest's order. For one thread at a time. Nothing is thrown but what
/// memory that runs out throws.
class FamilyModel
{
public:
    /// Opens a family file: container, manifest, formulas. The file is not needed afterwards.
    /// @param path UTF-8
    /// @return null with a reason: those of FamilyFileReader and FormulaSet::Make
    static std::unique_ptr<FamilyModel> Open(const std::string& path, Reason& reason);

    /// @return null with a reason: those of FormulaSet::Make
    static std::unique_ptr<FamilyModel> Make(FamilyManifest manifest, Reason& reason);

    const FamilyManifest& Manifest() const { return m_manifest; }
    const FormulaSet& Formulas() const { return m_formulas; }

    /// All values of one type.
    std::optional<std::vector<Value>> TypeValues(std::size_t type, Reason& reason) const;

    /// Checks the values of driving parameters and works out those of driven ones.
    /// @return false with a reason, value.… or formula.…; then nothing is changed
    bool Compute(std::vector<Value>& values, Reason& reason) const;

    /// The family's recipe, parsed when it is first asked for.
    /// @return null with a reason: geometry.none, recipe.… or formula.…
    const Recipe* GeometryRecipe(Reason& reason) const;

    /// What is to be built for computed values.
    std::optional<ShapePlan> Plan(const std::vector<Value>& values, Reason& reason) const;

    /// The body for computed values.
    /// @param progress may be null
    BuildResult Build(const std::vector<Value>& values, BuildProgress* progress = nullptr) const;

private:
    FamilyModel(FamilyManifest manifest, FormulaSet formulas);

    FamilyManifest m_manifest;
    FormulaSet m_formulas;
    mutable bool m_wasRecipeParsed = false;
    mutable std::optional<Recipe> m_recipe;
    mutable Reason m_recipeReason;
};

} // namespace familyfiles
