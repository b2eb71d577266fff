#include "FamilyFiles/Geometry/EdgeChoice.h"

#include "FamilyFiles/Geometry/OcctPoints.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepLProp_SLProps.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <algorithm>
#include <array>
#include <cmath>

namespace familyfiles {

namespace {

/// mm within which an edge lies in a plane or a box.
constexpr double kNear = 1e-4;

/// Sine of the angle below which two directions are one.
constexpr double kParallel = 1e-6;

/// Sine of the angle below which two faces join smoothly.
constexpr double kSmooth = 1e-3;

/// Points along an edge by which its place is told.
std::array<gp_Pnt, 3> PlacesOf(const BRepAdaptor_Curve& curve)
{
    const double first = curve.FirstParameter();
    const double last = curve.LastParameter();
    return {curve.Value(first), curve.Value((first + last) / 2), curve.Value(last)};
}

bool LiesInPlane(const BRepAdaptor_Curve& curve, const EdgeFilter& filter)
{
    const auto places = PlacesOf(curve);
    return std::all_of(places.begin(), places.end(), [&filter](const gp_Pnt& place) {
        const Point3 point{place.X(), place.Y(), place.Z()};
        return std::abs(Dot(point, filter.planeNormal) - filter.planeOffset) < kNear;
    });
}

bool LiesInBox(const BRepAdaptor_Curve& curve, const EdgeFilter& filter)
{
    const auto places = PlacesOf(curve);
    return std::all_of(places.begin(), places.end(), [&filter](const gp_Pnt& place) {
        return place.X() > filter.boxLow.x - kNear && place.X() < filter.boxHigh.x + kNear &&
               place.Y() > filter.boxLow.y - kNear && place.Y() < filter.boxHigh.y + kNear &&
               place.Z() > filter.boxLow.z - kNear && place.Z() < filter.boxHigh.z + kNear;
    });
}

bool RunsAlong(const BRepAdaptor_Curve& curve, const EdgeFilter& filter)
{
    return curve.GetType() == GeomAbs_Line &&
           ToVector(filter.direction).Crossed(curve.Line().Direction()).Magnitude() < kParallel;
}

bool IsChosen(const BRepAdaptor_Curve& curve, const EdgeFilter& filter)
{
    return (!filter.wantsLines || curve.GetType() == GeomAbs_Line) &&
           (!filter.wantsCircles || curve.GetType() == GeomAbs_Circle) &&
           (!filter.wantsDirection || RunsAlong(curve, filter)) && (!filter.wantsPlane || LiesInPlane(curve, filter)) &&
           (!filter.wantsBox || LiesInBox(curve, filter));
}

gp_Vec NormalAtMiddle(const TopoDS_Edge& edge, const TopoDS_Face& face)
{
    double first = 0;
    double last = 0;
    const Handle(Geom2d_Curve) curve = BRep_Tool::CurveOnSurface(edge, face, first, last);
    if (curve.IsNull()) {
        return {};
    }
    const gp_Pnt2d middle = curve->Value((first + last) / 2);
    const BRepAdaptor_Surface surface(face);
    BRepLProp_SLProps properties(surface, middle.X(), middle.Y(), 1, kParallel);
    return properties.IsNormalDefined() ? gp_Vec(properties.Normal()) : gp_Vec();
}

/// An edge between two faces that meet at an angle; seams and ends of cones are none.
bool IsSharp(const TopoDS_Edge& edge, const TopTools_ListOfShape& faces)
{
    if (BRep_Tool::Degenerated(edge) || faces.Extent() != 2 || faces.First().IsSame(faces.Last())) {
        return false;
    }
    const gp_Vec one = NormalAtMiddle(edge, TopoDS::Face(faces.First()));
    const gp_Vec other = NormalAtMiddle(edge, TopoDS::Face(faces.Last()));
    return one.Crossed(other).Magnitude() > kSmooth;
}

} // namespace

std::vector<TopoDS_Edge> ChooseEdges(const TopoDS_Shape& shape, const std::vector<EdgeFilter>& filters)
{
    TopTools_IndexedDataMapOfShapeListOfShape facesOfEdges;
    TopExp::MapShapesAndAncestors(shape, TopAbs_EDGE, TopAbs_FACE, facesOfEdges);
    std::vector<TopoDS_Edge> chosen;
    for (int i = 1; i <= facesOfEdges.Extent(); ++i) {
        const TopoDS_Edge edge = TopoDS::Edge(facesOfEdges.FindKey(i));
        if (!IsSharp(edge, facesOfEdges.FindFromIndex(i))) {
            continue;
        }
        const BRepAdaptor_Curve curve(edge);
        const bool isWanted =
            filters.empty() || std::any_of(filters.begin(), filters.end(),
                                   [&curve](const EdgeFilter& filter) { return IsChosen(curve, filter); });
        if (isWanted) {
            chosen.push_back(edge);
        }
    }
    return chosen;
}

} // namespace familyfiles
