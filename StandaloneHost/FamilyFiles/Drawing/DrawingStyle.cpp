#include "FamilyFiles/Drawing/DrawingStyle.h"

#include "FamilyFiles/Recipe/LoopSamples.h"

#include <algorithm>

namespace familyfiles {

namespace {

/// Part of the square on each side.
constexpr double kMargin = 0.04;

constexpr std::array<StyleLook, 5> kLooks{{
    {"hidden", "#8a97a8", 0.0026, {4, 2.6, 4, 2.6}},
    {"centre", "#c7773f", 0.0024, {14, 3, 3, 3}},
    {"visible", "#5f86b8", 0.0036, {0, 0, 0, 0}},
    {"outline", "#5f86b8", 0.0072, {0, 0, 0, 0}},
    {"connector", "#3f9b62", 0.0052, {0, 0, 0, 0}},
}};

} // namespace

const StyleLook& LookOf(LineStyle style)
{
    return kLooks[static_cast<std::size_t>(style)];
}

DrawingSquare SquareOf(const Drawing& drawing)
{
    PlaneBox box;
    box.Add(drawing.low);
    box.Add(drawing.high);
    for (const DrawingPath& path : drawing.paths) {
        for (const Point2& point : path.points) {
            box.Add(point);
        }
    }
    const double longer = std::max({box.high.u - box.low.u, box.high.v - box.low.v, 1e-3});
    const double side = longer / (1 - 2 * kMargin);
    return {{(box.low.u + box.high.u - side) / 2, (box.low.v + box.high.v - side) / 2}, side};
}

} // namespace familyfiles
