#pragma once

#include "FamilyFiles/Drawing/Drawing.h"

#include <array>
#include <cmath>
#include <vector>

namespace familyfiles::testing {

/// The paths of one style.
inline std::vector<DrawingPath> PathsOf(const Drawing& drawing, LineStyle style)
{
    std::vector<DrawingPath> paths;
    for (const DrawingPath& path : drawing.paths) {
        if (path.style == style) {
            paths.push_back(path);
        }
    }
    return paths;
}

/// How long the lines of one style are together.
inline double DrawnLength(const Drawing& drawing, LineStyle style)
{
    double length = 0;
    for (const DrawingPath& path : PathsOf(drawing, style)) {
        for (std::size_t i = 1; i < path.points.size(); ++i) {
            length += std::hypot(path.points[i].u - path.points[i - 1].u, path.points[i].v - path.points[i - 1].v);
        }
    }
    return length;
}

/// Least and greatest u, least and greatest v of the lines of one style.
inline std::array<double, 4> DrawnBox(const Drawing& drawing, LineStyle style)
{
    std::array<double, 4> box{1e300, -1e300, 1e300, -1e300};
    for (const DrawingPath& path : PathsOf(drawing, style)) {
        for (const Point2& point : path.points) {
            box = {std::min(box[0], point.u), std::max(box[1], point.u), std::min(box[2], point.v),
                std::max(box[3], point.v)};
        }
    }
    return box;
}

} // namespace familyfiles::testing
