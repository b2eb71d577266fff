#pragma once

#include "FamilyFiles/Recipe/Profile.h"

#include <vector>

namespace familyfiles {

/// A short straight piece of a projected edge; mm.
struct LineSegment
{
    Point2 from;
    Point2 to;
};

/// The pieces of a projection; many, short and partly twice.
struct ProjectedLines
{
    std::vector<LineSegment> visible;
    std::vector<LineSegment> hidden;
};

} // namespace familyfiles
