#include "FamilyFiles/Geometry/PrimitiveShapes.h"

#include "FamilyFiles/Geometry/OcctPoints.h"
#include "FamilyFiles/Geometry/ProfileFaces.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <GeomConvert.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_Ellipse.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <TopoDS_Face.hxx>

namespace familyfiles {

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kFullTurn = 360;

/// The frame of a profile that is turned about @p frame's W: its own normal points against the movement's start.
Frame RadialFrame(const Frame& frame)
{
    Frame radial;
    radial.origin = frame.origin;
    radial.u = frame.u;
    radial.v = frame.w;
    radial.w = Cross(frame.u, frame.w);
    return radial;
}

TopoDS_Shape Revolve(const TopoDS_Face& face, const Frame& frame, double angle)
{
    const gp_Ax1 axis(ToPoint(frame.origin), ToDirection(frame.w));
    // The face looks along the movement, or the solid would be inside out.
    const TopoDS_Shape ahead = face.Reversed();
    if (angle >= kFullTurn) {
        return BRepPrimAPI_MakeRevol(ahead, axis).Shape();
    }
    return BRepPrimAPI_MakeRevol(ahead, axis, angle * kRadiansPerDegree).Shape();
}

/// From the rim to the top. As a spline, because programs that read STEP files, this library among them, do not all
/// take a turned ellipse back.
Handle(Geom_Curve) DomeCurve(const DomeShape& dome, const Frame& radial)
{
    const bool isFlat = dome.radius >= dome.depth;
    const gp_Ax2 axes(ToPoint(radial.origin), ToDirection(radial.w), ToDirection(isFlat ? radial.u : radial.v));
    const Handle(Geom_Ellipse) ellipse =
        new Geom_Ellipse(axes, std::max(dome.radius, dome.depth), std::min(dome.radius, dome.depth));
    // A high ellipse begins its count at the top, so that the rim comes a quarter turn before.
    const double begin = isFlat ? 0 : -90 * kRadiansPerDegree;
    const Handle(Geom_TrimmedCurve) quarter = new Geom_TrimmedCurve(ellipse, begin, begin + 90 * kRadiansPerDegree);
    return GeomConvert::CurveToBSplineCurve(quarter);
}

/// A quarter of an ellipse between the axis and the rim.
TopoDS_Face DomeFace(const DomeShape& dome, const Frame& radial)
{
    const gp_Pnt centre = ToPoint(radial.origin);
    const gp_Pnt rim = ToPoint(radial, {dome.radius, 0});
    const gp_Pnt top = ToPoint(radial, {0, dome.depth});
    const TopoDS_Edge bottom = BRepBuilderAPI_MakeEdge(centre, rim);
    const TopoDS_Edge curve = BRepBuilderAPI_MakeEdge(DomeCurve(dome, radial), rim, top);
    const TopoDS_Edge axis = BRepBuilderAPI_MakeEdge(top, centre);
    return BRepBuilderAPI_MakeFace(BRepBuilderAPI_MakeWire(bottom, curve, axis), true);
}

} // namespace

TopoDS_Shape MakeShape(const BlockShape& block)
{
    gp_Ax2 axes = ToAxes(block.place);
    axes.SetLocation(ToPoint(block.place.At(block.corner.x, block.corner.y, block.corner.z)));
    return BRepPrimAPI_MakeBox(axes, block.size.x, block.size.y, block.size.z).Solid();
}

TopoDS_Shape MakeShape(const CylinderShape& cylinder)
{
    const gp_Ax2 axes = ToAxes(cylinder.place);
    if (cylinder.angle >= kFullTurn) {
        return BRepPrimAPI_MakeCylinder(axes, cylinder.radius, cylinder.length).Solid();
    }
    return BRepPrimAPI_MakeCylinder(axes, cylinder.radius, cylinder.length, cylinder.angle * kRadiansPerDegree).Solid();
}

TopoDS_Shape MakeShape(const ConeShape& cone)
{
    const gp_Ax2 axes = ToAxes(cone.place);
    if (cone.radius == cone.endRadius) {
        return BRepPrimAPI_MakeCylinder(axes, cone.radius, cone.length).Solid();
    }
    return BRepPrimAPI_MakeCone(axes, cone.radius, cone.endRadius, cone.length).Solid();
}

TopoDS_Shape MakeShape(const SphereShape& sphere)
{
    return BRepPrimAPI_MakeSphere(ToPoint(sphere.centre), sphere.radius).Solid();
}

TopoDS_Shape MakeShape(const DomeShape& dome)
{
    if (dome.radius == dome.depth) {
        constexpr double quarter = 90 * kRadiansPerDegree;
        return BRepPrimAPI_MakeSphere(ToAxes(dome.place), dome.radius, 0, quarter).Solid();
    }
    return Revolve(DomeFace(dome, RadialFrame(dome.place)), dome.place, kFullTurn);
}

TopoDS_Shape MakeShape(const TorusShape& torus)
{
    const gp_Ax2 axes = ToAxes(torus.place);
    if (torus.angle >= kFullTurn) {
        return BRepPrimAPI_MakeTorus(axes, torus.radius, torus.sectionRadius).Solid();
    }
    return BRepPrimAPI_MakeTorus(axes, torus.radius, torus.sectionRadius, torus.angle * kRadiansPerDegree).Solid();
}

TopoDS_Shape MakeShape(const PrismShape& prism)
{
    const TopoDS_Face face = MakeFace(prism.section, prism.place);
    return BRepPrimAPI_MakePrism(face, ToVector(prism.place.w * prism.length)).Shape();
}

TopoDS_Shape MakeShape(const RevolvedShape& revolved)
{
    return Revolve(MakeFace(revolved.section, RadialFrame(revolved.place)), revolved.place, revolved.angle);
}

} // namespace familyfiles
