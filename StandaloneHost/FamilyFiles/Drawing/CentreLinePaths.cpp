#include "FamilyFiles/Drawing/CentreLinePaths.h"

#include "FamilyFiles/Recipe/Frame.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

using Line = std::vector<Point2>;

/// Parts of the diagonal.
constexpr double kOvershoot = 0.025;
constexpr double kCross = 0.025;
constexpr double kNoLength = 1e-4;

constexpr int kCircleChords = 72;

double Distance(const Point2& a, const Point2& b)
{
    return std::hypot(a.u - b.u, a.v - b.v);
}

void AddCross(std::vector<Line>& lines, const Point2& at, double half)
{
    lines.push_back({{at.u - half, at.v}, {at.u + half, at.v}});
    lines.push_back({{at.u, at.v - half}, {at.u, at.v + half}});
}

Line Lengthened(const Point2& from, const Point2& to, double by)
{
    const double length = Distance(from, to);
    const Point2 along{(to.u - from.u) / length * by, (to.v - from.v) / length * by};
    return {{from.u - along.u, from.v - along.v}, {to.u + along.u, to.v + along.v}};
}

void AddStraight(std::vector<Line>& lines, const Point2& from, const Point2& to, double diagonal)
{
    if (Distance(from, to) < diagonal * kNoLength) {
        AddCross(lines, from, diagonal * kCross);
    } else {
        lines.push_back(Lengthened(from, to, diagonal * kOvershoot));
    }
}

void AddCircle(std::vector<Line>& lines, const CentreLine& circle, const ViewPlane& plane, double diagonal)
{
    const Frame frame = MakeFrame(circle.from, circle.direction, 0);
    Line line;
    for (int i = 0; i <= kCircleChords; ++i) {
        const double angle = 360.0 * (i % kCircleChords) / kCircleChords;
        line.push_back(
            plane.Project(frame.At(circle.radius * CosineOfDegrees(angle), circle.radius * SineOfDegrees(angle), 0)));
    }
    const Point3 axis = circle.direction;
    const bool isEdgeOn = std::abs(Dot(axis, plane.toViewer)) < kNoLength;
    if (!isEdgeOn) {
        lines.push_back(std::move(line));
        return;
    }
    const auto less = [](const Point2& a, const Point2& b) { return a.u + a.v < b.u + b.v; };
    const auto ends = std::minmax_element(line.begin(), line.end(), less);
    AddStraight(lines, *ends.first, *ends.second, diagonal);
}

bool AreSame(const Line& one, const Line& other, double precision)
{
    if (one.size() != other.size()) {
        return false;
    }
    const auto isNear = [precision](const Point2& a, const Point2& b) { return Distance(a, b) < precision; };
    return std::equal(one.begin(), one.end(), other.begin(), isNear) ||
           std::equal(one.begin(), one.end(), other.rbegin(), isNear);
}

} // namespace

std::vector<std::vector<Point2>> CentreLinePaths(
    const std::vector<CentreLine>& centreLines, const ViewPlane& plane, double diagonal)
{
    std::vector<Line> lines;
    for (const CentreLine& centreLine : centreLines) {
        if (centreLine.isCircle) {
            AddCircle(lines, centreLine, plane, diagonal);
        } else {
            AddStraight(lines, plane.Project(centreLine.from), plane.Project(centreLine.to), diagonal);
        }
    }
    std::vector<Line> different;
    for (Line& line : lines) {
        const bool isKnown = std::any_of(different.begin(), different.end(),
            [&](const Line& known) { return AreSame(line, known, diagonal * kNoLength); });
        if (!isKnown) {
            different.push_back(std::move(line));
        }
    }
    return different;
}

} // namespace familyfiles
