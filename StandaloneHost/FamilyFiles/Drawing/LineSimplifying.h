#pragma once

#include "FamilyFiles/Recipe/Profile.h"

#include <vector>

namespace familyfiles {

/// Leaves out the points that a line misses by less than @p tolerance (Douglas and Peucker); ends stay.
std::vector<Point2> Simplified(const std::vector<Point2>& line, double tolerance);

} // namespace familyfiles
