#pragma once

#include "FamilyFiles/BuildResult.h"
#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Drawing/Drawing.h"
#include "FamilyFiles/Drawing/TriangleMesh.h"
#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Solid.h"
#include "FamilyFiles/StepSchema.h"

#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

class BuildProgress;
struct ShapePlan;

/// What makes bodies and pictures of them: a modelling library behind an interface that does not show it.
///
/// Nothing is thrown across it. One object serves all threads; a Solid is for one thread at a time. A program that
/// needs no geometry never loads the library.
class GeometryKernel
{
public:
    virtual ~GeometryKernel();
    GeometryKernel(const GeometryKernel&) = delete;
    GeometryKernel& operator=(const GeometryKernel&) = delete;

    /// The kernel of this process: the one given to Use, else the one in the module libTarnNuqGeometry, which is loaded
    /// on the first call and then stays. From any thread.
    /// @return null with a reason (module.missing) when there is none
    static const GeometryKernel* Get(Reason& reason);

    /// Makes @p kernel the one of this process, before it is first needed; it must live to the end. Null: back to the
    /// module.
    static void Use(const GeometryKernel* kernel);

    /// Name and version of the library.
    virtual std::string Name() const = 0;

    /// @param progress may be null
    virtual BuildResult Build(const ShapePlan& plan, BuildProgress* progress) const = 0;

    /// The hidden-line drawing of a view, with the plan's centre lines and the marks of connectors. DrawingSvg and
    /// DrawingPicture make documents and pictures of it.
    /// @return nothing with a reason on failure
    virtual std::optional<Drawing> Draw(
        const Solid& solid, DrawingView view, const std::vector<ConnectorMark>& connectors, Reason& reason) const = 0;

    /// The surface as triangles with materials, for ShadedPicture.
    /// @return nothing with a reason on failure
    virtual std::optional<TriangleMesh> Mesh(const Solid& solid, Reason& reason) const = 0;

    /// @param path UTF-8; written as a whole or not at all
    virtual bool WriteStep(const Solid& solid, const std::string& path, StepSchema schema, Reason& reason) const = 0;
    virtual bool WriteGltf(const Solid& solid, const std::string& path, Reason& reason) const = 0;
    virtual bool WriteStl(const Solid& solid, const std::string& path, Reason& reason) const = 0;

    /// Reads a STEP file back, to check what was written.
    virtual BuildResult ReadStep(const std::string& path) const = 0;

protected:
    GeometryKernel() = default;
};

} // namespace familyfiles
