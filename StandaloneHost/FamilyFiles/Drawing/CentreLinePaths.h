#pragma once

#include "FamilyFiles/Drawing/ViewPlane.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// Centre lines as seen in a view: a little longer than given, a cross where one is seen from its end, circles as
/// ellipses or lines. What falls on the same place is drawn once.
/// @param diagonal of the drawing, mm
std::vector<std::vector<Point2>> CentreLinePaths(
    const std::vector<CentreLine>& centreLines, const ViewPlane& plane, double diagonal);

} // namespace familyfiles
