#include "FamilyFiles/Geometry/OcctSolid.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"
#include "FamilyFiles/Geometry/SolidCheck.h"
#include "FamilyFiles/Geometry/SurfaceNormals.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <BRepLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <cmath>
#include <utility>

namespace familyfiles {

namespace {

/// Part of the diagonal by which triangles may leave the surface: below a pixel of the largest pictures.
constexpr double kDeflection = 1e-3;

/// Radians between neighbouring triangles' normals.
constexpr double kAngle = 0.2;

/// Radians up to which two faces join smoothly.
constexpr double kSmooth = 1e-3;

} // namespace

OcctSolid::OcctSolid(TopoDS_Shape shape, double volume, SolidLook look)
    : m_shape(std::move(shape)), m_volume(volume), m_look(std::move(look))
{
}

double OcctSolid::Area() const
{
    if (!m_area) {
        GProp_GProps properties;
        BRepGProp::SurfaceProperties(m_shape, properties);
        m_area = properties.Mass();
    }
    return *m_area;
}

std::array<double, 6> OcctSolid::Box() const
{
    if (!m_box) {
        // The quick box is wider than the shape by tolerances and by the poles of curves.
        Bnd_Box box;
        BRepBndLib::AddOptimal(m_shape, box, false, false);
        std::array<double, 6> corners{};
        box.SetGap(0);
        box.Get(corners[0], corners[1], corners[2], corners[3], corners[4], corners[5]);
        m_box = corners;
    }
    return *m_box;
}

bool OcctSolid::IsValid() const
{
    return IsSound(m_shape);
}

void OcctSolid::EnsureTriangles() const
{
    if (m_hasTriangles) {
        return;
    }
    const BRepMesh_IncrementalMesh mesh(m_shape, Diagonal() * kDeflection, false, kAngle, false);
    if (!mesh.IsDone()) {
        throw GeometryFailure("geometry.failed", "The surface cannot be cut into triangles", "表面无法三角化");
    }
    AddSurfaceNormals(m_shape);
    m_hasTriangles = true;
}

void OcctSolid::EnsureSmoothEdges() const
{
    if (!m_hasSmoothEdges) {
        BRepLib::EncodeRegularity(m_shape, kSmooth);
        m_hasSmoothEdges = true;
    }
}

double OcctSolid::Diagonal() const
{
    Bnd_Box box;
    BRepBndLib::Add(m_shape, box, false);
    return std::sqrt(box.SquareExtent());
}

} // namespace familyfiles
