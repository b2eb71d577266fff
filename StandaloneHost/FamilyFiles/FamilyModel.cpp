#include "FamilyFiles/FamilyModel.h"

#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/GeometryKernel.h"
#include "FamilyFiles/Manifest/TypeTable.h"

#include <utility>

namespace familyfiles {

namespace {

Reason NoGeometry()
{
    return {"geometry.none", {}, "The family has no geometry.", "该族没有几何模型。"};
}

} // namespace

FamilyModel::FamilyModel(FamilyManifest manifest, FormulaSet formulas)
    : m_manifest(std::move(manifest)), m_formulas(std::move(formulas))
{
}

std::unique_ptr<FamilyModel> FamilyModel::Open(const std::string& path, Reason& reason)
{
    std::optional<FamilyManifest> manifest = FamilyFileReader::ReadManifest(path, reason);
    return manifest ? Make(std::move(*manifest), reason) : nullptr;
}

std::unique_ptr<FamilyModel> FamilyModel::Make(FamilyManifest manifest, Reason& reason)
{
    std::optional<FormulaSet> formulas = MakeFormulas(manifest, reason);
    if (!formulas) {
        return nullptr;
    }
    return std::unique_ptr<FamilyModel>(new FamilyModel(std::move(manifest), std::move(*formulas)));
}

std::optional<std::vector<Value>> FamilyModel::TypeValues(std::size_t type, Reason& reason) const
{
    return ComputedValues(m_manifest, m_formulas, type, reason);
}

bool FamilyModel::Compute(std::vector<Value>& values, Reason& reason) const
{
    return ArePossible(m_manifest, values, reason) && m_formulas.Evaluate(values, reason);
}

const Recipe* FamilyModel::GeometryRecipe(Reason& reason) const
{
    if (!m_wasRecipeParsed) {
        m_wasRecipeParsed = true;
        if (m_manifest.geometry.empty()) {
            m_recipeReason = NoGeometry();
        } else {
            m_recipe = Recipe::Parse(m_manifest.geometry, m_formulas.Names(), m_recipeReason);
        }
    }
    if (!m_recipe) {
        reason = m_recipeReason;
        return nullptr;
    }
    return &*m_recipe;
}

std::optional<ShapePlan> FamilyModel::Plan(const std::vector<Value>& values, Reason& reason) const
{
    const Recipe* const recipe = GeometryRecipe(reason);
    return recipe != nullptr ? recipe->Evaluate(m_formulas.ScopeOf(values), reason) : std::nullopt;
}

BuildResult FamilyModel::Build(const std::vector<Value>& values, BuildProgress* progress) const
{
    BuildResult result;
    const std::optional<ShapePlan> plan = Plan(values, result.reason);
    const GeometryKernel* const kernel = plan ? GeometryKernel::Get(result.reason) : nullptr;
    if (kernel == nullptr) {
        return result;
    }
    return kernel->Build(*plan, progress);
}

} // namespace familyfiles
