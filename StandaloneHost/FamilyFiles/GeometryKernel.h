#pragma once

#include "FamilyFiles/BuildResult.h"
#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Solid.h"
#include "FamilyFiles/StepSchema.h"

#include <QtGlobal>
#include <string>

QT_BEGIN_NAMESPACE
class QImage;
QT_END_NAMESPACE

namespace familyfiles {

class BuildProgress;
class ShapePlan;
struct DrawingMarks;

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
    /// @return null with a reason (kernel.missing) when there is none
    static const GeometryKernel* Get(Reason& reason);

    /// Makes @p kernel the one of this process, before it is first needed; it must live to the end. Null: back to the
    /// module.
    static void Use(const GeometryKernel* kernel);

    /// Name and version of the library.
    virtual std::string Name() const = 0;

    /// @param progress may be null
    virtual BuildResult Build(const ShapePlan& plan, BuildProgress* progress) const = 0;

    /// A hidden-line drawing as SVG.
    /// @return empty with a reason on failure
    virtual std::string Draw(const Solid& solid, DrawingView view, const DrawingMarks& marks, Reason& reason) const = 0;

    /// A shaded picture with transparent background.
    /// @return null with a reason on failure
    virtual QImage Render(const Solid& solid, const DrawingMarks& marks, int pixels, Reason& reason) const = 0;

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
