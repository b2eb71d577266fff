#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Drawing/Drawing.h"
#include "FamilyFiles/Drawing/LineSegments.h"
#include "FamilyFiles/Drawing/TriangleMesh.h"
#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// Makes a drawing from the pieces of a projection: joins them into lines, tells outlines from other edges and adds
/// centre lines and marks.
/// @param mesh the same body's triangles; normals are not needed
Drawing MakeDrawing(const ProjectedLines& lines, const TriangleMesh& mesh, DrawingView view,
    const std::vector<CentreLine>& centreLines, const std::vector<ConnectorMark>& connectors);

} // namespace familyfiles
