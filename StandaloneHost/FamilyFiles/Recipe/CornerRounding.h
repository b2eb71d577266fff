#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"

#include <vector>

namespace familyfiles {

/// A corner of a path as it is written down.
struct PathCorner
{
    Point3 point;
    double radius = 0;     ///< of the rounding; 0: none
    bool isArcEnd = false; ///< an arc leads here, from the corner before it through via
    Point3 via;
};

/// The lines and arcs along @p corners. Legs of no length are left out.
/// @param isClosed the last corner is joined to the first
/// Throws RecipeFailure where a rounding needs more room than its legs have, or an arc is none.
std::vector<PathSegment> RoundCorners(const std::vector<PathCorner>& corners, bool isClosed);

/// The direction in which @p segment ends or begins, of unit length.
Point3 EndDirection(const PathSegment& segment);
Point3 StartDirection(const PathSegment& segment);

/// Centre of the circle through three points that lie on no line.
Point3 CircleCentre(const Point3& a, const Point3& b, const Point3& c);

} // namespace familyfiles
