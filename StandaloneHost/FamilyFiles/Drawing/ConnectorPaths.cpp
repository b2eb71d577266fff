#include "FamilyFiles/Drawing/ConnectorPaths.h"

#include "FamilyFiles/Recipe/Frame.h"

#include <cmath>

namespace familyfiles {

namespace {

using Line = std::vector<Point2>;

/// Parts of the diagonal.
constexpr double kArrow = 0.055;
constexpr double kHead = 0.02;
constexpr double kRing = 0.016;

/// A direction that is seen shorter than this points at the viewer or away.
constexpr double kEndOn = 0.25;

constexpr int kRingChords = 24;

Point2 Offset(const Point2& at, const Point2& along, double a, double across)
{
    return {at.u + along.u * a - along.v * across, at.v + along.v * a + along.u * across};
}

void AddArrow(std::vector<Line>& lines, const Point2& at, const Point2& along, double diagonal)
{
    const double length = kArrow * diagonal;
    const double head = kHead * diagonal;
    lines.push_back({at, Offset(at, along, length, 0)});
    lines.push_back({Offset(at, along, length - head, head * 0.45), Offset(at, along, length, 0),
        Offset(at, along, length - head, -head * 0.45)});
}

Line Ring(const Point2& at, double radius)
{
    Line ring;
    for (int i = 0; i <= kRingChords; ++i) {
        const double angle = 360.0 * (i % kRingChords) / kRingChords;
        ring.push_back({at.u + radius * CosineOfDegrees(angle), at.v + radius * SineOfDegrees(angle)});
    }
    return ring;
}

void AddEndOn(std::vector<Line>& lines, const Point2& at, bool isTowardsViewer, double diagonal)
{
    const double radius = kRing * diagonal;
    lines.push_back(Ring(at, radius));
    if (isTowardsViewer) {
        lines.push_back(Ring(at, radius * 0.2));
        return;
    }
    const double half = radius * 0.70710678118654752;
    lines.push_back({{at.u - half, at.v - half}, {at.u + half, at.v + half}});
    lines.push_back({{at.u - half, at.v + half}, {at.u + half, at.v - half}});
}

} // namespace

std::vector<std::vector<Point2>> ConnectorPaths(
    const std::vector<ConnectorMark>& connectors, const ViewPlane& plane, double diagonal)
{
    std::vector<Line> lines;
    for (const ConnectorMark& connector : connectors) {
        const Point2 at = plane.Project(connector.position);
        const Point2 seen = plane.Project(connector.direction);
        const double length = std::hypot(seen.u, seen.v);
        if (length < kEndOn) {
            AddEndOn(lines, at, Dot(connector.direction, plane.toViewer) > 0, diagonal);
        } else {
            AddArrow(lines, at, {seen.u / length, seen.v / length}, diagonal);
        }
    }
    return lines;
}

} // namespace familyfiles
