#include "FamilyFiles/Geometry/ShapeBuilder.h"

#include "FamilyFiles/Geometry/EdgeTreatment.h"
#include "FamilyFiles/Geometry/PrimitiveShapes.h"
#include "FamilyFiles/Geometry/ShapeCopies.h"
#include "FamilyFiles/Geometry/ShapeJoining.h"
#include "FamilyFiles/Geometry/SweptShapes.h"

#include <algorithm>
#include <type_traits>

namespace familyfiles {

namespace {

template <typename Shape>
constexpr bool IsCombining =
    std::is_same_v<Shape, BooleanStep> || std::is_same_v<Shape, EdgeStep> || std::is_same_v<Shape, CopyStep>;

} // namespace

ShapeBuilder::ShapeBuilder(const ShapePlan& plan, FaceMaterials& materials, BuildBudget& budget)
    : m_plan(plan), m_materials(materials), m_budget(budget)
{
}

TopoDS_Shape ShapeBuilder::Build()
{
    m_bodies.reserve(m_plan.steps.size());
    for (const PlanStep& step : m_plan.steps) {
        m_currentStep = step.name;
        m_budget.BeginOperation();
        m_bodies.push_back(Make(step));
    }
    const TopoDS_Shape result = AsOneShape(BodiesOf(m_plan.result), m_materials, m_budget);
    m_currentStep.clear();
    return result;
}

ShapeBody ShapeBuilder::Make(const PlanStep& step)
{
    ShapeBody body = std::visit(
        [this](const auto& shape) -> ShapeBody {
            if constexpr (IsCombining<std::decay_t<decltype(shape)>>) {
                return Combine(shape);
            } else {
                return {MakeShape(shape)};
            }
        },
        step.shape);
    if (!step.material.empty()) {
        for (const TopoDS_Shape& shape : body) {
            m_materials.Paint(shape, step.material);
        }
    }
    return body;
}

ShapeBody ShapeBuilder::BodiesOf(const std::vector<std::size_t>& steps) const
{
    ShapeBody all;
    for (const std::size_t step : steps) {
        all.insert(all.end(), m_bodies[step].begin(), m_bodies[step].end());
    }
    return all;
}

ShapeBody ShapeBuilder::Combine(const BooleanStep& step)
{
    switch (step.kind) {
    case BooleanKind::Cut:
        return {Join(BooleanKind::Cut, {AsOneShape(BodiesOf(step.arguments), m_materials, m_budget)},
            BodiesOf(step.tools), m_materials, m_budget)};
    case BooleanKind::Common:
        return Common(step);
    case BooleanKind::Fuse:
        break;
    }
    return Fuse(step);
}

ShapeBody ShapeBuilder::Fuse(const BooleanStep& step)
{
    const ShapeBody all = BodiesOf(step.arguments);
    if (all.size() == 1) {
        return all;
    }
    return {Join(BooleanKind::Fuse, {all.front()}, {all.begin() + 1, all.end()}, m_materials, m_budget)};
}

/// One after the other: with several tools at once the kernel would keep what lies in any of them.
ShapeBody ShapeBuilder::Common(const BooleanStep& step)
{
    TopoDS_Shape rest = AsOneShape(BodiesOf(step.arguments), m_materials, m_budget);
    for (const std::size_t tool : step.tools) {
        rest = Join(
            BooleanKind::Common, {rest}, {AsOneShape(m_bodies[tool], m_materials, m_budget)}, m_materials, m_budget);
    }
    return {rest};
}

ShapeBody ShapeBuilder::Combine(const EdgeStep& step)
{
    return {TreatEdges(step, AsOneShape(BodiesOf(step.of), m_materials, m_budget), m_materials, m_budget)};
}

ShapeBody ShapeBuilder::Combine(const CopyStep& step)
{
    return MakeCopies(step, BodiesOf(step.of), m_materials);
}

std::vector<std::string> MaterialsOf(const ShapePlan& plan)
{
    std::vector<std::string> names{plan.material};
    for (const PlanStep& step : plan.steps) {
        const bool isNew = std::find(names.begin(), names.end(), step.material) == names.end();
        if (!step.material.empty() && isNew) {
            names.push_back(step.material);
        }
    }
    return names;
}

} // namespace familyfiles
