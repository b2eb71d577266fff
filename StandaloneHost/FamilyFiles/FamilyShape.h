#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Drawing/Drawing.h"
#include "FamilyFiles/Drawing/TriangleMesh.h"
#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Recipe/Point3.h"
#include "FamilyFiles/Solid.h"
#include "FamilyFiles/StepSchema.h"

#include <QImage>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

class BuildProgress;
class FamilyModel;
class GeometryKernel;

/// A family's body for one set of values, and what can be made of it: drawings, pictures, files for other programs.
///
/// For one thread at a time. Independent of the model that it came from.
class FamilyShape
{
public:
    /// @param values of all parameters, computed
    /// @param progress may be null
    /// @return nothing with a reason: those of FamilyModel::Build and of Recipe::EvaluateConnectors
    static std::optional<FamilyShape> Build(
        const FamilyModel& model, const std::vector<Value>& values, Reason& reason, BuildProgress* progress = nullptr);

    ~FamilyShape();
    FamilyShape(FamilyShape&&) noexcept;
    FamilyShape& operator=(FamilyShape&&) noexcept;

    const Solid& Body() const { return *m_body; }
    /// Which kernel built it, with its version.
    std::string KernelName() const;

    /// The hidden-line drawing of a view with centre lines and connectors.
    std::optional<Drawing> Draw(DrawingView view, Reason& reason) const;

    /// The shaded picture. The surface is worked out for the first one and kept for the others.
    std::optional<QImage> Render(int pixels, Reason& reason);

    /// Files for other programs; a file is written as a whole or not at all.
    /// @param path UTF-8
    bool WriteStep(const std::string& path, StepSchema schema, Reason& reason) const;
    bool WriteGltf(const std::string& path, Reason& reason) const;
    bool WriteStl(const std::string& path, Reason& reason) const;

private:
    FamilyShape(const GeometryKernel& kernel, std::unique_ptr<Solid> body, std::vector<ConnectorMark> connectors,
        const Point3& camera);

    const GeometryKernel* m_kernel;
    std::unique_ptr<Solid> m_body;
    std::vector<ConnectorMark> m_connectors;
    Point3 m_camera;
    std::optional<TriangleMesh> m_mesh;
};

} // namespace familyfiles
