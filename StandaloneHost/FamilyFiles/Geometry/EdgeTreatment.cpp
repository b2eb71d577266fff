#include "FamilyFiles/Geometry/EdgeTreatment.h"

#include "FamilyFiles/Geometry/EdgeChoice.h"
#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <BRepFilletAPI_MakeChamfer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>

namespace familyfiles {

namespace {

/// Rounding cannot be interrupted, so the work is bounded beforehand.
constexpr std::size_t kMostEdges = 200;

TopoDS_Shape Finish(
    BRepBuilderAPI_MakeShape& operation, const TopoDS_Shape& shape, FaceMaterials& materials, BuildBudget& budget)
{
    operation.Build(budget.Start());
    budget.Check();
    if (!operation.IsDone()) {
        throw GeometryFailure("geometry.failed", "The edges cannot be rounded or bevelled by this size",
            "无法按此尺寸对边进行圆角或倒角");
    }
    if (materials.IsNeeded()) {
        materials.Follow({shape}, operation);
    }
    return operation.Shape();
}

} // namespace

TopoDS_Shape TreatEdges(const EdgeStep& step, const TopoDS_Shape& shape, FaceMaterials& materials, BuildBudget& budget)
{
    const std::vector<TopoDS_Edge> edges = ChooseEdges(shape, step.filters);
    if (edges.empty()) {
        throw GeometryFailure("geometry.no-edges", "No edge is chosen", "没有选中任何边");
    }
    if (edges.size() > kMostEdges) {
        throw GeometryFailure("geometry.too-large", "Too many edges are chosen", "选中的边过多");
    }
    if (step.isFillet) {
        BRepFilletAPI_MakeFillet fillet(shape);
        for (const TopoDS_Edge& edge : edges) {
            fillet.Add(step.size, edge);
        }
        return Finish(fillet, shape, materials, budget);
    }
    BRepFilletAPI_MakeChamfer chamfer(shape);
    for (const TopoDS_Edge& edge : edges) {
        chamfer.Add(step.size, edge);
    }
    return Finish(chamfer, shape, materials, budget);
}

} // namespace familyfiles
