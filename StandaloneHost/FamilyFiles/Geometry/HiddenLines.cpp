#include "FamilyFiles/Geometry/HiddenLines.h"

#include <BRep_Tool.hxx>
#include <HLRAlgo_Projector.hxx>
#include <HLRBRep_PolyAlgo.hxx>
#include <HLRBRep_PolyHLRToShape.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>
#include <gp_Ax2.hxx>

namespace familyfiles {

namespace {

gp_Ax2 AxesOf(DrawingView view)
{
    switch (view) {
    case DrawingView::Plan:
        return {gp_Pnt(), gp_Dir(0, 0, 1), gp_Dir(1, 0, 0)};
    case DrawingView::Elevation:
        return {gp_Pnt(), gp_Dir(0, -1, 0), gp_Dir(1, 0, 0)};
    case DrawingView::Profile:
        break;
    }
    return {gp_Pnt(), gp_Dir(1, 0, 0), gp_Dir(0, 1, 0)};
}

/// Each edge of the result is one straight piece; the result may be null when there are none.
void Collect(const TopoDS_Shape& edges, std::vector<LineSegment>& segments)
{
    if (edges.IsNull()) {
        return;
    }
    for (TopExp_Explorer edge(edges, TopAbs_EDGE); edge.More(); edge.Next()) {
        TopoDS_Vertex first;
        TopoDS_Vertex last;
        TopExp::Vertices(TopoDS::Edge(edge.Current()), first, last);
        if (!first.IsNull() && !last.IsNull()) {
            const gp_Pnt a = BRep_Tool::Pnt(first);
            const gp_Pnt b = BRep_Tool::Pnt(last);
            segments.push_back({{a.X(), a.Y()}, {b.X(), b.Y()}});
        }
    }
}

} // namespace

ProjectedLines ProjectLines(const OcctSolid& solid, DrawingView view)
{
    solid.EnsureTriangles();
    solid.EnsureSmoothEdges();
    const Handle(HLRBRep_PolyAlgo) algorithm = new HLRBRep_PolyAlgo;
    algorithm->Load(solid.Shape());
    algorithm->Projector(HLRAlgo_Projector(AxesOf(view)));
    algorithm->Update();
    HLRBRep_PolyHLRToShape result;
    result.Update(algorithm);
    ProjectedLines lines;
    Collect(result.VCompound(), lines.visible);
    Collect(result.OutLineVCompound(), lines.visible);
    Collect(result.HCompound(), lines.hidden);
    Collect(result.OutLineHCompound(), lines.hidden);
    return lines;
}

} // namespace familyfiles
