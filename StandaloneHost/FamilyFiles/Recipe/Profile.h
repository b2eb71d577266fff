#pragma once

#include <cstdint>
#include <vector>

namespace familyfiles {

/// A point in the plane of a profile, mm: u to the right, v up.
struct Point2
{
    double u = 0;
    double v = 0;
};

/// A straight line, or a circular arc through a third point.
struct Segment
{
    Point2 from;
    Point2 to;
    bool isArc = false;
    Point2 via; ///< of an arc
};

/// What a closed outline is made of.
enum class LoopKind : std::uint8_t
{
    Path,   ///< segments, each beginning where the one before ends
    Circle, ///< radiusU around the centre
    Ellipse ///< half axes radiusU and radiusV around the centre, turned by turn degrees
};

/// A closed outline that does not cross itself.
struct Loop
{
    LoopKind kind = LoopKind::Path;
    Point2 centre;
    double radiusU = 0;
    double radiusV = 0;
    double turn = 0;
    std::vector<Segment> segments;
};

/// A plane shape: an outline and the holes in it, which touch neither the outline nor each other.
struct Profile
{
    Loop outline;
    std::vector<Loop> holes;
};

} // namespace familyfiles
