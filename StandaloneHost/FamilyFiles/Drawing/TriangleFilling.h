#pragma once

#include "FamilyFiles/Drawing/PixelBuffers.h"
#include "FamilyFiles/Drawing/TriangleMesh.h"

namespace familyfiles {

/// Fills buffers with the nearest surfaces of @p mesh seen from @p camera; the body fills the square but for a margin.
/// @param camera from the body towards the viewer; not zero
PixelBuffers FillTriangles(const TriangleMesh& mesh, const Point3& camera, int side);

} // namespace familyfiles
