#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Drawing/ViewPlane.h"

#include <vector>

namespace familyfiles {

/// Marks of connectors as seen in a view: an arrow that points away from the component; where it points at the viewer a
/// circle with a dot, where it points away a circle with a cross.
/// @param diagonal of the drawing, mm
std::vector<std::vector<Point2>> ConnectorPaths(
    const std::vector<ConnectorMark>& connectors, const ViewPlane& plane, double diagonal);

} // namespace familyfiles
