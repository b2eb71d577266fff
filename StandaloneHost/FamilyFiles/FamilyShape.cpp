#include "FamilyFiles/FamilyShape.h"

#include "FamilyFiles/Drawing/ShadedPicture.h"
#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/GeometryKernel.h"

#include <utility>

namespace familyfiles {

std::optional<FamilyShape> FamilyShape::Build(
    const FamilyModel& model, const std::vector<Value>& values, Reason& reason, BuildProgress* progress)
{
    const Recipe* const recipe = model.GeometryRecipe(reason);
    if (recipe == nullptr) {
        return std::nullopt;
    }
    const Scope scope = model.Formulas().ScopeOf(values);
    const std::optional<ShapePlan> plan = recipe->Evaluate(scope, reason);
    if (!plan) {
        return std::nullopt;
    }
    auto connectors = recipe->EvaluateConnectors(model.Manifest().connectors, scope, reason);
    const GeometryKernel* const kernel = connectors ? GeometryKernel::Get(reason) : nullptr;
    if (kernel == nullptr) {
        return std::nullopt;
    }
    BuildResult built = kernel->Build(*plan, progress);
    if (!built.solid) {
        reason = std::move(built.reason);
        return std::nullopt;
    }
    return FamilyShape(*kernel, std::move(built.solid), std::move(*connectors), plan->camera);
}

FamilyShape::FamilyShape(const GeometryKernel& kernel, std::unique_ptr<Solid> body,
    std::vector<ConnectorMark> connectors, const Point3& camera)
    : m_kernel(&kernel), m_body(std::move(body)), m_connectors(std::move(connectors)), m_camera(camera)
{
}

FamilyShape::~FamilyShape() = default;

FamilyShape::FamilyShape(FamilyShape&&) noexcept = default;

FamilyShape& FamilyShape::operator=(FamilyShape&&) noexcept = default;

std::string FamilyShape::KernelName() const
{
    return m_kernel->Name();
}

std::optional<Drawing> FamilyShape::Draw(DrawingView view, Reason& reason) const
{
    return m_kernel->Draw(*m_body, view, m_connectors, reason);
}

std::optional<QImage> FamilyShape::Render(int pixels, Reason& reason)
{
    if (!m_mesh) {
        m_mesh = m_kernel->Mesh(*m_body, reason);
    }
    return m_mesh ? std::optional<QImage>(ShadedPicture(*m_mesh, m_camera, pixels)) : std::nullopt;
}

bool FamilyShape::WriteStep(const std::string& path, StepSchema schema, Reason& reason) const
{
    return m_kernel->WriteStep(*m_body, path, schema, reason);
}

bool FamilyShape::WriteGltf(const std::string& path, Reason& reason) const
{
    return m_kernel->WriteGltf(*m_body, path, reason);
}

bool FamilyShape::WriteStl(const std::string& path, Reason& reason) const
{
    return m_kernel->WriteStl(*m_body, path, reason);
}

} // namespace familyfiles
