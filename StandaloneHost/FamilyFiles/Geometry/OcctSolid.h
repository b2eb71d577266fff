#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"
#include "FamilyFiles/Solid.h"

#include <TopoDS_Shape.hxx>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// What belongs to a solid beside its shape.
struct SolidLook
{
    std::vector<std::string> materials;       ///< the first is that of faces without one of their own
    std::vector<std::uint16_t> faceMaterials; ///< by the order of the shape's faces
    std::vector<CentreLine> centreLines;
};

/// A body of the modelling library. Measures are worked out when first asked for.
class OcctSolid : public Solid
{
public:
    /// @param shape solids alone, checked
    OcctSolid(TopoDS_Shape shape, double volume, SolidLook look);

    double Volume() const override { return m_volume; }
    double Area() const override;
    std::array<double, 6> Box() const override;
    bool IsValid() const override;

    const TopoDS_Shape& Shape() const { return m_shape; }
    const SolidLook& Look() const { return m_look; }

    /// Makes the triangles of the shape's faces if they are not there yet. Throws GeometryFailure or Standard_Failure.
    void EnsureTriangles() const;

    /// Marks the edges along which faces join smoothly if they are not marked yet: drawings leave them out.
    void EnsureSmoothEdges() const;

    /// Distance between the opposite corners of the box that the kernel finds quickly; mm.
    double Diagonal() const;

private:
    TopoDS_Shape m_shape;
    double m_volume;
    SolidLook m_look;
    mutable std::optional<double> m_area;
    mutable std::optional<std::array<double, 6>> m_box;
    mutable bool m_hasTriangles = false;
    mutable bool m_hasSmoothEdges = false;
};

} // namespace familyfiles
