#pragma once

#include "FamilyFiles/Drawing/LineSegments.h"
#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Geometry/OcctSolid.h"

namespace familyfiles {

/// The edges and silhouettes of a solid as seen in a view, apart in seen and hidden ones. Works on the triangles: the
/// exact algorithm takes seconds where this one takes milliseconds. Throws GeometryFailure or Standard_Failure.
ProjectedLines ProjectLines(const OcctSolid& solid, DrawingView view);

} // namespace familyfiles
