#include "FamilyFiles/Drawing/LineSimplifying.h"

#include <cmath>
#include <utility>

namespace familyfiles {

namespace {

double DistanceToLine(const Point2& point, const Point2& from, const Point2& to)
{
    const double u = to.u - from.u;
    const double v = to.v - from.v;
    const double length = std::hypot(u, v);
    if (length == 0) {
        return std::hypot(point.u - from.u, point.v - from.v);
    }
    return std::abs(u * (point.v - from.v) - v * (point.u - from.u)) / length;
}

/// The point between two that is farthest from the line through them, with its distance.
std::pair<std::size_t, double> Farthest(const std::vector<Point2>& line, std::size_t first, std::size_t last)
{
    std::pair<std::size_t, double> farthest{first, 0};
    for (std::size_t i = first + 1; i < last; ++i) {
        const double distance = DistanceToLine(line[i], line[first], line[last]);
        if (distance > farthest.second) {
            farthest = {i, distance};
        }
    }
    return farthest;
}

} // namespace

std::vector<Point2> Simplified(const std::vector<Point2>& line, double tolerance)
{
    if (line.size() < 3) {
        return line;
    }
    std::vector<bool> isKept(line.size(), false);
    isKept.front() = true;
    isKept.back() = true;
    std::vector<std::pair<std::size_t, std::size_t>> open{{0, line.size() - 1}};
    while (!open.empty()) {
        const auto [first, last] = open.back();
        open.pop_back();
        const auto [index, distance] = Farthest(line, first, last);
        if (distance > tolerance) {
            isKept[index] = true;
            open.emplace_back(first, index);
            open.emplace_back(index, last);
        }
    }
    std::vector<Point2> kept;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (isKept[i]) {
            kept.push_back(line[i]);
        }
    }
    return kept;
}

} // namespace familyfiles
