#include "FamilyFiles/Geometry/SweptShapes.h"

#include "FamilyFiles/Geometry/OcctPoints.h"
#include "FamilyFiles/Geometry/ProfileFaces.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepOffsetAPI_MakePipeShell.hxx>
#include <BRepOffsetAPI_ThruSections.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <Standard_Failure.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>

namespace familyfiles {

namespace {

TopoDS_Edge MakeEdge(const PathSegment& segment, const TopoDS_Vertex& from, const TopoDS_Vertex& to)
{
    if (!segment.isArc) {
        return BRepBuilderAPI_MakeEdge(from, to);
    }
    const GC_MakeArcOfCircle arc(ToPoint(segment.from), ToPoint(segment.via), ToPoint(segment.to));
    return BRepBuilderAPI_MakeEdge(arc.Value(), from, to);
}

TopoDS_Wire MakeSpine(const std::vector<PathSegment>& path)
{
    BRepBuilderAPI_MakeWire wire;
    TopoDS_Vertex from = BRepBuilderAPI_MakeVertex(ToPoint(path.front().from));
    for (const PathSegment& segment : path) {
        const TopoDS_Vertex to = BRepBuilderAPI_MakeVertex(ToPoint(segment.to));
        wire.Add(MakeEdge(segment, from, to));
        from = to;
    }
    return wire.Wire();
}

TopoDS_Shape CutAway(const TopoDS_Shape& from, const TopTools_ListOfShape& tools)
{
    if (tools.IsEmpty()) {
        return from;
    }
    BRepAlgoAPI_Cut cut;
    TopTools_ListOfShape arguments;
    arguments.Append(from);
    cut.SetArguments(arguments);
    cut.SetTools(tools);
    cut.SetToFillHistory(false);
    cut.Build();
    if (!cut.IsDone() || cut.HasErrors()) {
        throw Standard_Failure("cutting the holes of a profile");
    }
    return cut.Shape();
}

/// A solid with mitred corners around one outline.
TopoDS_Shape MitredSolid(const TopoDS_Wire& spine, const TopoDS_Wire& outline)
{
    BRepOffsetAPI_MakePipeShell pipe(spine);
    pipe.SetTransitionMode(BRepBuilderAPI_RightCorner);
    pipe.Add(outline);
    pipe.Build();
    if (!pipe.IsDone() || !pipe.MakeSolid()) {
        throw Standard_Failure("mitring a sweep");
    }
    return pipe.Shape();
}

TopoDS_Shape MitredShape(const TopoDS_Wire& spine, const SweptShape& swept)
{
    TopTools_ListOfShape holes;
    for (const Loop& hole : swept.section.holes) {
        holes.Append(MitredSolid(spine, MakeWire(hole, swept.place)));
    }
    return CutAway(MitredSolid(spine, MakeWire(swept.section.outline, swept.place)), holes);
}

/// @p outline chooses the loop of a section.
template <typename Outline>
TopoDS_Shape Skin(const LoftShape& loft, const Outline& outline)
{
    constexpr double precision = 1e-6;
    BRepOffsetAPI_ThruSections skin(true, loft.isRuled || loft.sections.size() == 2, precision);
    for (const LoftSection& section : loft.sections) {
        skin.AddWire(MakeWire(outline(section.section), section.place));
    }
    skin.Build();
    if (!skin.IsDone()) {
        throw Standard_Failure("skinning sections");
    }
    return skin.Shape();
}

} // namespace

TopoDS_Shape MakeShape(const SweptShape& swept)
{
    const TopoDS_Wire spine = MakeSpine(swept.path);
    if (swept.hasSharpCorners) {
        return MitredShape(spine, swept);
    }
    BRepOffsetAPI_MakePipe pipe(spine, MakeFace(swept.section, swept.place));
    return pipe.Shape();
}

TopoDS_Shape MakeShape(const LoftShape& loft)
{
    TopTools_ListOfShape holes;
    for (std::size_t i = 0; i < loft.sections.front().section.holes.size(); ++i) {
        holes.Append(Skin(loft, [i](const Profile& profile) -> const Loop& { return profile.holes[i]; }));
    }
    return CutAway(Skin(loft, [](const Profile& profile) -> const Loop& { return profile.outline; }), holes);
}

} // namespace familyfiles
