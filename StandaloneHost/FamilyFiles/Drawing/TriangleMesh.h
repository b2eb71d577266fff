#pragma once

#include "FamilyFiles/Recipe/Point3.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace familyfiles {

/// A corner of triangles: where it is and where the surface looks there.
struct MeshVertex
{
    Point3 position;
    Point3 normal; ///< outwards, of unit length
};

/// Three vertices, counter-clockwise seen from outside.
struct MeshTriangle
{
    std::array<std::uint32_t, 3> vertices{};
    std::uint16_t material = 0; ///< index in TriangleMesh::materials
};

/// A body's surface as triangles.
struct TriangleMesh
{
    std::vector<MeshVertex> vertices;
    std::vector<MeshTriangle> triangles;
    std::vector<std::string> materials; ///< names or "#rrggbb"
};

} // namespace familyfiles
