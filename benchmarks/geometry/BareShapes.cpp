#include "BareShapes.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <cmath>
#include <gp_Circ.hxx>
#include <initializer_list>

namespace bench {

namespace {

constexpr double kPi = 3.14159265358979323846;

TopoDS_Wire Circle(const gp_Pnt& centre, const gp_Dir& axis, double radius)
{
    return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(centre, axis), radius)));
}

/// An upright rectangle across X.
TopoDS_Wire Rectangle(double x, double y, double z, double width, double height)
{
    BRepBuilderAPI_MakePolygon polygon(gp_Pnt(x, y - width / 2, z - height / 2),
        gp_Pnt(x, y + width / 2, z - height / 2), gp_Pnt(x, y + width / 2, z + height / 2),
        gp_Pnt(x, y - width / 2, z + height / 2), true);
    return polygon.Wire();
}

TopoDS_Face Ring(const TopoDS_Wire& outline, const std::vector<TopoDS_Wire>& holes)
{
    BRepBuilderAPI_MakeFace face(outline, true);
    for (const TopoDS_Wire& hole : holes) {
        face.Add(TopoDS::Wire(hole.Reversed()));
    }
    return face.Face();
}

TopoDS_Shape Tube(const gp_Pnt& at, const gp_Dir& axis, double outer, double inner, double length)
{
    return BRepPrimAPI_MakePrism(Ring(Circle(at, axis, outer), {Circle(at, axis, inner)}), gp_Vec(axis) * length)
        .Shape();
}

TopTools_ListOfShape ListOf(std::initializer_list<TopoDS_Shape> shapes)
{
    TopTools_ListOfShape list;
    for (const TopoDS_Shape& shape : shapes) {
        list.Append(shape);
    }
    return list;
}

TopoDS_Shape Fused(const TopoDS_Shape& first, const TopTools_ListOfShape& others)
{
    BRepAlgoAPI_Fuse fuse;
    fuse.SetArguments(ListOf({first}));
    fuse.SetTools(others);
    fuse.Build();
    return fuse.Shape();
}

TopoDS_Shape CutFrom(const TopoDS_Shape& from, const TopTools_ListOfShape& tools)
{
    BRepAlgoAPI_Cut cut;
    cut.SetArguments(ListOf({from}));
    cut.SetTools(tools);
    cut.Build();
    return cut.Shape();
}

gp_Ax2 Axes(double x, double y, double z, const gp_Dir& axis)
{
    return {gp_Pnt(x, y, z), axis};
}

TopoDS_Shape MakeDuct()
{
    return BRepPrimAPI_MakePrism(Ring(Rectangle(0, 0, 0, 400, 250), {Rectangle(0, 0, 0, 396, 246)}), gp_Vec(1000, 0, 0))
        .Shape();
}

TopoDS_Shape MakeElbow()
{
    const gp_Pnt begin(-500, 0, 0);
    const double middle = 500 * std::sqrt(0.5);
    const GC_MakeArcOfCircle arc(begin, gp_Pnt(-500 + middle, -500 + middle, 0), gp_Pnt(0, -500, 0));
    const TopoDS_Wire spine = BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(arc.Value()));
    return BRepOffsetAPI_MakePipe(spine, Ring(Rectangle(-500, 0, 0, 400, 250), {Rectangle(-500, 0, 0, 396, 246)}))
        .Shape();
}

TopoDS_Shape MakeFlange(double x, const gp_Dir& axis)
{
    std::vector<TopoDS_Wire> holes{Circle(gp_Pnt(x, 0, 0), axis, 50)};
    for (int i = 0; i < 8; ++i) {
        const double angle = (i + 0.5) * kPi / 4;
        holes.push_back(Circle(gp_Pnt(x, 90 * std::cos(angle), 90 * std::sin(angle)), axis, 9));
    }
    return BRepPrimAPI_MakePrism(Ring(Circle(gp_Pnt(x, 0, 0), axis, 110), holes), gp_Vec(axis) * 22).Shape();
}

TopoDS_Shape MakeFlangeAlone()
{
    return MakeFlange(0, gp_Dir(1, 0, 0));
}

TopoDS_Shape MakeTee()
{
    const TopoDS_Shape run = BRepPrimAPI_MakeCylinder(Axes(-150, 0, 0, gp_Dir(1, 0, 0)), 57, 300).Solid();
    const TopoDS_Shape branch = BRepPrimAPI_MakeCylinder(Axes(0, 0, 0, gp_Dir(0, 0, 1)), 57, 150).Solid();
    const TopoDS_Shape bore = BRepPrimAPI_MakeCylinder(Axes(-150, 0, 0, gp_Dir(1, 0, 0)), 50, 300).Solid();
    const TopoDS_Shape branchBore = BRepPrimAPI_MakeCylinder(Axes(0, 0, 0, gp_Dir(0, 0, 1)), 50, 150).Solid();
    return CutFrom(Fused(run, ListOf({branch})), ListOf({bore, branchBore}));
}

TopoDS_Shape MakeTank()
{
    const TopoDS_Shape shell = BRepPrimAPI_MakeCylinder(Axes(0, 0, 300, gp_Dir(0, 0, 1)), 300, 900).Solid();
    const TopoDS_Shape top = BRepPrimAPI_MakeSphere(Axes(0, 0, 1200, gp_Dir(0, 0, 1)), 300, 0, kPi / 2).Solid();
    const TopoDS_Shape bottom = BRepPrimAPI_MakeSphere(Axes(0, 0, 300, gp_Dir(0, 0, -1)), 300, 0, kPi / 2).Solid();
    TopTools_ListOfShape others = ListOf({top, bottom});
    for (int i = 0; i < 3; ++i) {
        const double angle = 2 * kPi / 3 * i;
        others.Append(
            BRepPrimAPI_MakeCylinder(Axes(230 * std::cos(angle), 230 * std::sin(angle), -100, gp_Dir(0, 0, 1)), 30, 300)
                .Solid());
    }
    return Fused(shell, others);
}

TopoDS_Shape MakeValve()
{
    TopTools_ListOfShape parts =
        ListOf({MakeFlange(-115, gp_Dir(1, 0, 0)), Tube(gp_Pnt(-94, 0, 0), gp_Dir(1, 0, 0), 58, 50, 188),
            CutFrom(BRepPrimAPI_MakeCylinder(Axes(0, 0, 0, gp_Dir(0, 0, 1)), 66, 190).Solid(),
                ListOf({BRepPrimAPI_MakeCylinder(Axes(-115, 0, 0, gp_Dir(1, 0, 0)), 50, 230).Solid()})),
            BRepPrimAPI_MakeBox(gp_Pnt(-72, -72, 190), 144, 144, 22).Solid(),
            BRepPrimAPI_MakeCone(Axes(0, 0, 212, gp_Dir(0, 0, 1)), 58, 26, 115).Solid(),
            BRepPrimAPI_MakeCylinder(Axes(0, 0, 212, gp_Dir(0, 0, 1)), 11, 208).Solid(),
            BRepPrimAPI_MakeTorus(Axes(0, 0, 405, gp_Dir(0, 0, 1)), 110, 10).Solid(),
            BRepPrimAPI_MakeCylinder(Axes(0, 0, 391, gp_Dir(0, 0, 1)), 24, 29).Solid()});
    for (int i = 0; i < 4; ++i) {
        const double angle = kPi / 2 * i;
        parts.Append(
            BRepPrimAPI_MakeCylinder(Axes(0, 0, 405, gp_Dir(std::cos(angle), std::sin(angle), 0)), 7, 110).Solid());
    }
    return Fused(MakeFlange(93, gp_Dir(1, 0, 0)), parts);
}

const char* const kFlangeText =
    R"("diameter": 220, "thickness": 22, "bore": 100, "bolts": {"count": 8, "circle": 180, "diameter": 18}})";

std::string ValveRecipe()
{
    return std::string(R"({"steps": [{"op": "flange", "axis": "X", "at": [115, 0, 0], )") + kFlangeText +
           R"(, {"op": "flange", "axis": "-X", "at": [-115, 0, 0], )" + kFlangeText +
           R"(, {"op": "pipe", "axis": "X", "diameter": 116, "bore": 100, "length": 188, "centred": true},
        {"op": "cut", "from": {"op": "cylinder", "radius": 66, "length": 190},
            "tools": [{"op": "cylinder", "axis": "X", "radius": 50, "length": 230, "centred": true}]},
        {"op": "box", "at": [0, 0, 190], "size": [144, 144, 22]},
        {"op": "cone", "at": [0, 0, 212], "radius": 58, "radius2": 26, "length": 115},
        {"op": "cylinder", "at": [0, 0, 212], "radius": 11, "length": 208},
        {"op": "torus", "at": [0, 0, 405], "radius": 110, "thickness": 20},
        {"op": "cylinder", "at": [0, 0, 391], "radius": 24, "length": 29},
        {"op": "polarPattern", "count": 4, "of": {"op": "cylinder", "at": [0, 0, 405], "axis": "X", "radius": 7, "length": 110}},
        {"op": "fuse"}]})";
}

} // namespace

const std::vector<BareShape>& BareShapes()
{
    static const std::vector<BareShape> shapes{
        {"duct", R"({"steps": [{"op": "extrude", "axis": "X", "length": 1000,
            "profile": {"shape": "rectangle", "width": 400, "height": 250, "wall": 2}}]})",
            MakeDuct},
        {"elbow", R"({"steps": [{"op": "sweep", "path": [[-500, 0, 0], [0, 0, 0, 500], [0, -500, 0]],
            "profile": {"shape": "rectangle", "width": 400, "height": 250, "wall": 2}}]})",
            MakeElbow},
        {"flange", std::string(R"({"steps": [{"op": "flange", "axis": "X", )") + kFlangeText + "]}", MakeFlangeAlone},
        {"tee", R"({"steps": [{"op": "cut", "from": {"op": "fuse", "of": [
                {"op": "cylinder", "axis": "X", "radius": 57, "length": 300, "centred": true},
                {"op": "cylinder", "radius": 57, "length": 150}]},
            "tools": [{"op": "cylinder", "axis": "X", "radius": 50, "length": 300, "centred": true},
                {"op": "cylinder", "radius": 50, "length": 150}]}]})",
            MakeTee},
        {"tank", R"({"steps": [{"op": "cylinder", "at": [0, 0, 300], "radius": 300, "length": 900},
            {"op": "dome", "at": [0, 0, 1200], "radius": 300}, {"op": "dome", "at": [0, 0, 300], "axis": "-Z", "radius": 300},
            {"op": "polarPattern", "count": 3, "of": {"op": "cylinder", "at": [230, 0, -100], "radius": 30, "length": 300}},
            {"op": "fuse"}]})",
            MakeTank},
        {"valve", ValveRecipe(), MakeValve},
    };
    return shapes;
}

} // namespace bench
