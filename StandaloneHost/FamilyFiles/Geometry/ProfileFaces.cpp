#include "FamilyFiles/Geometry/ProfileFaces.h"

#include "FamilyFiles/Geometry/OcctPoints.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>
#include <gp_Circ.hxx>
#include <gp_Elips.hxx>
#include <gp_Pln.hxx>
#include <vector>

namespace familyfiles {

namespace {

TopoDS_Edge MakeEdge(const Segment& segment, const Frame& frame, const TopoDS_Vertex& from, const TopoDS_Vertex& to)
{
    if (!segment.isArc) {
        return BRepBuilderAPI_MakeEdge(from, to);
    }
    const GC_MakeArcOfCircle arc(ToPoint(frame, segment.from), ToPoint(frame, segment.via), ToPoint(frame, segment.to));
    return BRepBuilderAPI_MakeEdge(arc.Value(), from, to);
}

/// Neighbouring edges share their vertices, so that the wire is closed without any search for nearby ends.
TopoDS_Wire MakePathWire(const std::vector<Segment>& segments, const Frame& frame)
{
    std::vector<TopoDS_Vertex> corners;
    corners.reserve(segments.size());
    for (const Segment& segment : segments) {
        corners.push_back(BRepBuilderAPI_MakeVertex(ToPoint(frame, segment.from)));
    }
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        wire.Add(MakeEdge(segments[i], frame, corners[i], corners[(i + 1) % corners.size()]));
    }
    return wire.Wire();
}

TopoDS_Edge MakeCircleEdge(const Loop& loop, const Frame& frame)
{
    const gp_Ax2 axes(ToPoint(frame, loop.centre), ToDirection(frame.w), ToDirection(frame.u));
    return BRepBuilderAPI_MakeEdge(gp_Circ(axes, loop.radiusU));
}

/// The longer half axis comes first in an ellipse of the kernel.
TopoDS_Edge MakeEllipseEdge(const Loop& loop, const Frame& frame)
{
    const bool isWide = loop.radiusU >= loop.radiusV;
    const Point3 major = Turned(frame.u, frame.w, loop.turn + (isWide ? 0 : 90));
    const gp_Ax2 axes(ToPoint(frame, loop.centre), ToDirection(frame.w), ToDirection(major));
    return BRepBuilderAPI_MakeEdge(
        gp_Elips(axes, std::max(loop.radiusU, loop.radiusV), std::min(loop.radiusU, loop.radiusV)));
}

} // namespace

TopoDS_Wire MakeWire(const Loop& loop, const Frame& frame)
{
    switch (loop.kind) {
    case LoopKind::Circle:
        return BRepBuilderAPI_MakeWire(MakeCircleEdge(loop, frame));
    case LoopKind::Ellipse:
        return BRepBuilderAPI_MakeWire(MakeEllipseEdge(loop, frame));
    case LoopKind::Path:
        break;
    }
    return MakePathWire(loop.segments, frame);
}

TopoDS_Face MakeFace(const Profile& profile, const Frame& frame)
{
    const gp_Pln plane{gp_Ax3(ToAxes(frame))};
    BRepBuilderAPI_MakeFace face(plane, MakeWire(profile.outline, frame));
    for (const Loop& hole : profile.holes) {
        face.Add(TopoDS::Wire(MakeWire(hole, frame).Reversed()));
    }
    return face.Face();
}

} // namespace familyfiles
