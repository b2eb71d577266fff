#pragma once

#include "FamilyFiles/Geometry/BuildBudget.h"
#include "FamilyFiles/Geometry/FaceMaterials.h"
#include "FamilyFiles/Geometry/ShapeBody.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// Makes the shape of a plan, one step after the other.
class ShapeBuilder
{
public:
    /// All must outlive the builder.
    ShapeBuilder(const ShapePlan& plan, FaceMaterials& materials, BuildBudget& budget);

    /// The shape of the plan's result. Throws GeometryFailure or Standard_Failure; then CurrentStep tells where.
    TopoDS_Shape Build();

    /// Name of the step that is being made; empty before the first and behind the last.
    const std::string& CurrentStep() const { return m_currentStep; }

private:
    ShapeBody Make(const PlanStep& step);
    ShapeBody BodiesOf(const std::vector<std::size_t>& steps) const;
    ShapeBody Combine(const BooleanStep& step);
    ShapeBody Combine(const EdgeStep& step);
    ShapeBody Combine(const CopyStep& step);
    ShapeBody Fuse(const BooleanStep& step);
    ShapeBody Common(const BooleanStep& step);

    const ShapePlan& m_plan;
    FaceMaterials& m_materials;
    BuildBudget& m_budget;
    std::vector<ShapeBody> m_bodies;
    std::string m_currentStep;
};

/// The materials that a plan's steps name, the plan's own first.
std::vector<std::string> MaterialsOf(const ShapePlan& plan);

} // namespace familyfiles
