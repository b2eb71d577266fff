#pragma once

#include "FamilyFiles/Drawing/LineSegments.h"

#include <vector>

namespace familyfiles {

/// Joins short pieces into long lines.
///
/// Ends nearer than @p grid become one, pieces that stand twice or have no length are dropped, lines go on through
/// points where two pieces meet, and points that a line misses by less than @p tolerance are left out. A closed line
/// ends where it begins. The same pieces give the same lines.
std::vector<std::vector<Point2>> ChainLines(const std::vector<LineSegment>& pieces, double grid, double tolerance);

/// The pieces of @p pieces that are not in @p others, ends compared on a grid.
std::vector<LineSegment> WithoutThose(
    const std::vector<LineSegment>& pieces, const std::vector<LineSegment>& others, double grid);

} // namespace familyfiles
