#pragma once

#include "FamilyFiles/GeometryKernel.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <atomic>
#include <vector>

/// A kernel without geometry: it keeps the plans that it is asked for and gives bodies or a reason, as the test says.
/// While it lives it is the kernel of the process.
class RecordingKernel final : public familyfiles::GeometryKernel
{
public:
    RecordingKernel();
    ~RecordingKernel() override;

    std::string Name() const override { return "recording"; }
    familyfiles::BuildResult Build(
        const familyfiles::ShapePlan& plan, familyfiles::BuildProgress* progress) const override;
    std::optional<familyfiles::Drawing> Draw(const familyfiles::Solid& solid, familyfiles::DrawingView view,
        const std::vector<familyfiles::ConnectorMark>& connectors, familyfiles::Reason& reason) const override;
    std::optional<familyfiles::TriangleMesh> Mesh(
        const familyfiles::Solid& solid, familyfiles::Reason& reason) const override;
    bool WriteStep(const familyfiles::Solid& solid, const std::string& path, familyfiles::StepSchema schema,
        familyfiles::Reason& reason) const override;
    bool WriteGltf(
        const familyfiles::Solid& solid, const std::string& path, familyfiles::Reason& reason) const override;
    bool WriteStl(const familyfiles::Solid& solid, const std::string& path, familyfiles::Reason& reason) const override;
    familyfiles::BuildResult ReadStep(const std::string& path) const override;

    mutable std::vector<familyfiles::ShapePlan> plans;
    /// What every build is refused with; empty: it gives a body.
    familyfiles::Reason refusal;
    /// How many of its bodies are alive.
    mutable std::atomic<int> bodies{0};
};
