#pragma once

#include "FamilyFiles/Recipe/Profile.h"

#include <vector>

namespace familyfiles {

/// The smallest upright rectangle around something.
struct PlaneBox
{
    Point2 low{1e300, 1e300};
    Point2 high{-1e300, -1e300};

    void Add(const Point2& point);
    bool Touches(const PlaneBox& other) const;
};

/// Points along a closed outline in its direction, the first not repeated; arcs are cut into chords that leave them by
/// a fiftieth of a millimetre at most, as far as 256 chords a circle allow.
std::vector<Point2> SamplesOf(const Loop& loop);

/// The box around @p points.
PlaneBox BoxOf(const std::vector<Point2>& points);

/// Twice the area inside a closed line of points; negative when it runs clockwise.
double DoubleArea(const std::vector<Point2>& points);

/// Whether @p point lies inside a closed line of points.
bool IsInside(const Point2& point, const std::vector<Point2>& line);

/// Whether a closed line of points crosses or touches itself.
bool CrossesItself(const std::vector<Point2>& line);

/// Whether two closed lines of points cross or touch.
bool Cross(const std::vector<Point2>& one, const std::vector<Point2>& other);

} // namespace familyfiles
