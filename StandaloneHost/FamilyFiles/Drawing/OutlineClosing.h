#pragma once

#include "FamilyFiles/Drawing/CoverageMask.h"
#include "FamilyFiles/Drawing/LineSegments.h"

#include <vector>

namespace familyfiles {

/// The pieces that close gaps of an outline: between ends that nothing goes on from, no farther apart than @p reach,
/// where the straight line between them runs along the border of the component. At tips of cones the kernel leaves such
/// gaps.
std::vector<LineSegment> GapsOf(
    const std::vector<std::vector<Point2>>& outline, const CoverageMask& mask, double reach);

} // namespace familyfiles
