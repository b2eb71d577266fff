#pragma once

#include <TopoDS_Shape.hxx>

namespace familyfiles {

/// Gives the triangles of all faces the surfaces' own normals at their corners. Without them hidden-line drawings guess
/// silhouettes from the triangles, and round surfaces are shaded in facets.
void AddSurfaceNormals(const TopoDS_Shape& shape);

} // namespace familyfiles
