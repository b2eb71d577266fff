#include "FamilyFiles/Geometry/SurfaceMesh.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <utility>

namespace familyfiles {

namespace {

/// Adds one face after the other to a mesh.
class FaceCollector
{
public:
    FaceCollector(TriangleMesh& mesh, bool wantsNormals) : m_mesh(mesh), m_wantsNormals(wantsNormals) {}

    void Add(const TopoDS_Face& face, std::uint16_t material)
    {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangles = BRep_Tool::Triangulation(face, location);
        if (triangles.IsNull()) {
            return;
        }
        const bool isReversed = face.Orientation() == TopAbs_REVERSED;
        const gp_Trsf place = location.Transformation();
        const auto first = static_cast<std::uint32_t>(m_mesh.vertices.size());
        AddVertices(*triangles, place, isReversed);
        // A mirrored place turns the order of corners round too.
        AddTriangles(*triangles, first, material, isReversed != place.IsNegative());
    }

private:
    void AddVertices(const Poly_Triangulation& triangles, const gp_Trsf& place, bool isReversed)
    {
        for (int i = 1; i <= triangles.NbNodes(); ++i) {
            const gp_Pnt point = triangles.Node(i).Transformed(place);
            m_mesh.vertices.push_back({{point.X(), point.Y(), point.Z()}, {}});
            if (m_wantsNormals && triangles.HasNormals()) {
                const gp_Dir normal = triangles.Normal(i).Transformed(place);
                const Point3 outward{normal.X(), normal.Y(), normal.Z()};
                m_mesh.vertices.back().normal = isReversed ? outward * -1 : outward;
            }
        }
    }

    void AddTriangles(const Poly_Triangulation& triangles, std::uint32_t first, std::uint16_t material, bool isTurned)
    {
        for (int i = 1; i <= triangles.NbTriangles(); ++i) {
            int a = 0;
            int b = 0;
            int c = 0;
            triangles.Triangle(i).Get(a, b, c);
            if (isTurned) {
                std::swap(b, c);
            }
            const auto index = [first](int node) { return first + static_cast<std::uint32_t>(node) - 1; };
            m_mesh.triangles.push_back({{index(a), index(b), index(c)}, material});
        }
    }

    TriangleMesh& m_mesh;
    bool m_wantsNormals;
};

} // namespace

TriangleMesh MakeMesh(const OcctSolid& solid, bool wantsNormals)
{
    solid.EnsureTriangles();
    TriangleMesh mesh;
    mesh.materials = solid.Look().materials;
    FaceCollector collector(mesh, wantsNormals);
    std::size_t index = 0;
    for (TopExp_Explorer face(solid.Shape(), TopAbs_FACE); face.More(); face.Next(), ++index) {
        const auto& materials = solid.Look().faceMaterials;
        collector.Add(TopoDS::Face(face.Current()), index < materials.size() ? materials[index] : std::uint16_t{0});
    }
    return mesh;
}

} // namespace familyfiles
