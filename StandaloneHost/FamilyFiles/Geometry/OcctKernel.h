#pragma once

#include "FamilyFiles/GeometryKernel.h"

#include <chrono>

namespace familyfiles {

/// The geometry kernel over OpenCASCADE.
///
/// Exceptions of the library end here as reasons; its signal handlers are not installed. Several threads may use one
/// object; reading and writing of exchange files is done by one at a time, because the library keeps their settings in
/// one place.
class OcctKernel : public GeometryKernel
{
public:
    /// What a shape may take to make when nothing else is said.
    static constexpr std::chrono::milliseconds kUsualTime{30000};

    explicit OcctKernel(std::chrono::milliseconds time = kUsualTime);

    std::string Name() const override;
    BuildResult Build(const ShapePlan& plan, BuildProgress* progress) const override;
    std::optional<Drawing> Draw(const Solid& solid, DrawingView view, const std::vector<ConnectorMark>& connectors,
        Reason& reason) const override;
    std::optional<TriangleMesh> Mesh(const Solid& solid, Reason& reason) const override;
    bool WriteStep(const Solid& solid, const std::string& path, StepSchema schema, Reason& reason) const override;
    bool WriteGltf(const Solid& solid, const std::string& path, Reason& reason) const override;
    bool WriteStl(const Solid& solid, const std::string& path, Reason& reason) const override;
    BuildResult ReadStep(const std::string& path) const override;

private:
    std::chrono::milliseconds m_time;
};

} // namespace familyfiles
