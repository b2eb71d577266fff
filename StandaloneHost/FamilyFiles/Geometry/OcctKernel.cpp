#include "FamilyFiles/Geometry/OcctKernel.h"

#include "FamilyFiles/Drawing/DrawingMaking.h"
#include "FamilyFiles/Exchange/ExchangeFiles.h"
#include "FamilyFiles/Geometry/BuildBudget.h"
#include "FamilyFiles/Geometry/FaceMaterials.h"
#include "FamilyFiles/Geometry/HiddenLines.h"
#include "FamilyFiles/Geometry/KernelBorder.h"
#include "FamilyFiles/Geometry/OcctSolid.h"
#include "FamilyFiles/Geometry/ShapeBuilder.h"
#include "FamilyFiles/Geometry/SolidCheck.h"
#include "FamilyFiles/Geometry/SurfaceMesh.h"

#include <Standard_Version.hxx>
#include <TopExp_Explorer.hxx>

namespace familyfiles {

namespace {

SolidLook LookOf(const ShapePlan& plan, const FaceMaterials& materials, const TopoDS_Shape& shape)
{
    SolidLook look;
    look.materials = materials.Names();
    look.centreLines = plan.centreLines;
    if (materials.IsNeeded()) {
        for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
            look.faceMaterials.push_back(static_cast<std::uint16_t>(materials.Of(face.Current())));
        }
    }
    return look;
}

/// Solids of another kernel are none for this one.
const OcctSolid& OwnSolid(const Solid& solid)
{
    const auto* own = dynamic_cast<const OcctSolid*>(&solid);
    if (own == nullptr) {
        throw GeometryFailure("geometry.failed", "The solid is of another kernel", "实体来自其他几何内核");
    }
    return *own;
}

} // namespace

OcctKernel::OcctKernel(std::chrono::milliseconds time) : m_time(time)
{
    SilenceMessages();
}

std::string OcctKernel::Name() const
{
    return "OpenCASCADE " OCC_VERSION_COMPLETE;
}

BuildResult OcctKernel::Build(const ShapePlan& plan, BuildProgress* progress) const
{
    BuildResult result;
    FaceMaterials materials(MaterialsOf(plan));
    const Handle(BuildBudget) budget = new BuildBudget(m_time, progress, plan.steps.size() + 1);
    ShapeBuilder builder(plan, materials, *budget);
    RunAtBorder(
        [&] {
            const TopoDS_Shape shape = builder.Build();
            budget->BeginOperation();
            const CheckedShape checked = CheckSolid(shape, plan.solidCount);
            result.solid =
                std::make_unique<OcctSolid>(checked.shape, checked.volume, LookOf(plan, materials, checked.shape));
        },
        [&] { return builder.CurrentStep(); }, result.reason);
    return result;
}

std::optional<Drawing> OcctKernel::Draw(
    const Solid& solid, DrawingView view, const std::vector<ConnectorMark>& connectors, Reason& reason) const
{
    std::optional<Drawing> drawing;
    RunAtBorder(
        [&] {
            const OcctSolid& own = OwnSolid(solid);
            drawing =
                MakeDrawing(ProjectLines(own, view), MakeMesh(own, false), view, own.Look().centreLines, connectors);
        },
        reason);
    return drawing;
}

std::optional<TriangleMesh> OcctKernel::Mesh(const Solid& solid, Reason& reason) const
{
    std::optional<TriangleMesh> mesh;
    RunAtBorder([&] { mesh = MakeMesh(OwnSolid(solid), true); }, reason);
    return mesh;
}

bool OcctKernel::WriteStep(const Solid& solid, const std::string& path, StepSchema schema, Reason& reason) const
{
    return RunAtBorder([&] { WriteStepFile(OwnSolid(solid), path, schema); }, reason);
}

bool OcctKernel::WriteGltf(const Solid& solid, const std::string& path, Reason& reason) const
{
    return RunAtBorder([&] { WriteGltfFile(OwnSolid(solid), path); }, reason);
}

bool OcctKernel::WriteStl(const Solid& solid, const std::string& path, Reason& reason) const
{
    return RunAtBorder([&] { WriteStlFile(OwnSolid(solid), path); }, reason);
}

BuildResult OcctKernel::ReadStep(const std::string& path) const
{
    BuildResult result;
    RunAtBorder(
        [&] {
            const TopoDS_Shape shape = ReadStepFile(path);
            const CheckedShape checked = CheckSolid(shape, CountSolids(shape));
            result.solid = std::make_unique<OcctSolid>(checked.shape, checked.volume, SolidLook{{"steel"}, {}, {}});
        },
        result.reason);
    return result;
}

} // namespace familyfiles
