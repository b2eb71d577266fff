#pragma once

#include "FamilyFiles/Drawing/TriangleMesh.h"
#include "FamilyFiles/Geometry/OcctSolid.h"

namespace familyfiles {

/// The triangles of a solid with the surfaces' own normals, outwards.
/// @param wantsNormals false: normals are left out, which is quicker
/// Throws GeometryFailure or Standard_Failure.
TriangleMesh MakeMesh(const OcctSolid& solid, bool wantsNormals);

} // namespace familyfiles
