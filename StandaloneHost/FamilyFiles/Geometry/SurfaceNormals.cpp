#include "FamilyFiles/Geometry/SurfaceNormals.h"

#include <BRep_Tool.hxx>
#include <GeomLib.hxx>
#include <Geom_Surface.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <array>
#include <vector>

namespace familyfiles {

namespace {

/// Sum of the normals of the triangles around each corner, as long as their areas.
std::vector<gp_Vec> MeanNormals(const Poly_Triangulation& triangles)
{
    std::vector<gp_Vec> sums(static_cast<std::size_t>(triangles.NbNodes()) + 1);
    for (int i = 1; i <= triangles.NbTriangles(); ++i) {
        std::array<int, 3> nodes{};
        triangles.Triangle(i).Get(nodes[0], nodes[1], nodes[2]);
        const gp_Pnt corner = triangles.Node(nodes[0]);
        const gp_Vec facet = gp_Vec(corner, triangles.Node(nodes[1])).Crossed(gp_Vec(corner, triangles.Node(nodes[2])));
        for (const int node : nodes) {
            sums[static_cast<std::size_t>(node)] += facet;
        }
    }
    return sums;
}

gp_Dir DirectionOf(const gp_Vec& vector)
{
    constexpr double smallest = 1e-30;
    return vector.SquareMagnitude() > smallest ? gp_Dir(vector) : gp_Dir(0, 0, 1);
}

/// At the tip of a cone, where the surface has no normal, the mean of the triangles around it counts.
void AddNormals(Poly_Triangulation& triangles, const Handle(Geom_Surface) & surface)
{
    constexpr double precision = 1e-9;
    std::vector<gp_Vec> means;
    triangles.AddNormals();
    for (int i = 1; i <= triangles.NbNodes(); ++i) {
        gp_Dir normal;
        if (GeomLib::NormEstim(surface, triangles.UVNode(i), precision, normal) != 0) {
            means = means.empty() ? MeanNormals(triangles) : std::move(means);
            normal = DirectionOf(means[static_cast<std::size_t>(i)]);
        }
        triangles.SetNormal(i, normal);
    }
}

} // namespace

void AddSurfaceNormals(const TopoDS_Shape& shape)
{
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        const TopoDS_Face& face = TopoDS::Face(explorer.Current());
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangles = BRep_Tool::Triangulation(face, location);
        if (!triangles.IsNull() && triangles->HasUVNodes() && !triangles->HasNormals()) {
            AddNormals(*triangles, BRep_Tool::Surface(face, location));
        }
    }
}

} // namespace familyfiles
