#pragma once

#include "FamilyFiles/Recipe/Profile.h"

#include <cstdint>
#include <vector>

namespace familyfiles {

/// What a line of a drawing means; heavier lines lie above lighter ones.
enum class LineStyle : std::uint8_t
{
    Hidden,    ///< edges behind the component's surface: thin, dashed
    Centre,    ///< axes and bolt circles: thin, chain-dashed
    Visible,   ///< edges that are seen
    Outline,   ///< where the component ends and the background begins: thick
    Connector, ///< marks where others are connected
};

/// A line of a drawing; closed when it ends where it begins. mm, u to the right, v up.
struct DrawingPath
{
    LineStyle style = LineStyle::Visible;
    std::vector<Point2> points;
};

/// A hidden-line drawing of one view, in the component's own size.
struct Drawing
{
    Point2 low; ///< of the component alone, without centre lines and marks
    Point2 high;
    std::vector<DrawingPath> paths; ///< in the order in which they are painted
};

} // namespace familyfiles
