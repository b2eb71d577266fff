#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/Profile.h"

#include <vector>

namespace familyfiles {

/// A rectangle around the origin, its corners rounded by @p round (0: sharp).
Loop RectangleLoop(double width, double height, double round);

/// A circle around the origin.
Loop CircleLoop(double radius);

/// An ellipse around the origin.
Loop EllipseLoop(double width, double height);

/// A flat oval around the origin: straight sides between half circles.
Loop OvalLoop(double width, double height);

/// A regular polygon around the origin with a side at the bottom.
/// @param across the distance of opposite sides; where there are none, twice that of a side from the centre
Loop RegularLoop(std::size_t sides, double across);

/// The outline through the points of a polygon, rounded corners and arcs worked out. Throws RecipeFailure.
Loop PolygonLoop(const RecipeValue& points, const MemberValues& values);

/// @p loop turned about the origin by @p turn degrees, then moved.
Loop Placed(const Loop& loop, const Point2& at, double turn);

} // namespace familyfiles
