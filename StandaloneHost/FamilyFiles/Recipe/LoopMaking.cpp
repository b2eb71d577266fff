#include "FamilyFiles/Recipe/LoopMaking.h"

#include "FamilyFiles/Recipe/CornerRounding.h"
#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <cmath>

namespace familyfiles {

namespace {

constexpr double kHalfRoot = 0.70710678118654752;

/// A polygon's corner without rounding repeats the point before it: nothing lies between.
constexpr double kSamePoint = 1e-7;

double Distance(const Point2& a, const Point2& b)
{
    return std::hypot(a.u - b.u, a.v - b.v);
}

Loop PathLoop(std::vector<Segment> segments)
{
    Loop loop;
    loop.segments = std::move(segments);
    return loop;
}

Segment Line(const Point2& from, const Point2& to)
{
    return {from, to, false, {}};
}

/// A quarter of a circle; @p outward points from its centre to its middle.
Segment QuarterArc(const Point2& from, const Point2& to, const Point2& centre, double radius, const Point2& outward)
{
    const double reach = radius * kHalfRoot;
    return {from, to, true, {centre.u + outward.u * reach, centre.v + outward.v * reach}};
}

Point2 TurnedPoint(const Point2& point, const Point2& at, double turn)
{
    const double sine = SineOfDegrees(turn);
    const double cosine = CosineOfDegrees(turn);
    return {at.u + point.u * cosine - point.v * sine, at.v + point.u * sine + point.v * cosine};
}

} // namespace

Loop RectangleLoop(double width, double height, double round)
{
    const double u = width / 2;
    const double v = height / 2;
    if (round <= 0) {
        return PathLoop(
            {Line({-u, -v}, {u, -v}), Line({u, -v}, {u, v}), Line({u, v}, {-u, v}), Line({-u, v}, {-u, -v})});
    }
    const double inU = u - round;
    const double inV = v - round;
    std::vector<Segment> all{Line({-inU, -v}, {inU, -v}), QuarterArc({inU, -v}, {u, -inV}, {inU, -inV}, round, {1, -1}),
        Line({u, -inV}, {u, inV}), QuarterArc({u, inV}, {inU, v}, {inU, inV}, round, {1, 1}), Line({inU, v}, {-inU, v}),
        QuarterArc({-inU, v}, {-u, inV}, {-inU, inV}, round, {-1, 1}), Line({-u, inV}, {-u, -inV}),
        QuarterArc({-u, -inV}, {-inU, -v}, {-inU, -inV}, round, {-1, -1})};
    std::vector<Segment> kept;
    for (const Segment& segment : all) {
        if (Distance(segment.from, segment.to) > kSamePoint) {
            kept.push_back(segment);
        }
    }
    return PathLoop(std::move(kept));
}

Loop CircleLoop(double radius)
{
    Loop loop;
    loop.kind = LoopKind::Circle;
    loop.radiusU = radius;
    loop.radiusV = radius;
    return loop;
}

Loop EllipseLoop(double width, double height)
{
    Loop loop = CircleLoop(width / 2);
    loop.radiusV = height / 2;
    loop.kind = width == height ? LoopKind::Circle : LoopKind::Ellipse;
    return loop;
}

Loop OvalLoop(double width, double height)
{
    if (width == height) {
        return CircleLoop(width / 2);
    }
    const double radius = std::min(width, height) / 2;
    const double u = width / 2 - radius;
    const double v = height / 2 - radius;
    if (width > height) {
        return PathLoop({Line({-u, -radius}, {u, -radius}), {{u, -radius}, {u, radius}, true, {u + radius, 0}},
            Line({u, radius}, {-u, radius}), {{-u, radius}, {-u, -radius}, true, {-u - radius, 0}}});
    }
    return PathLoop({Line({radius, -v}, {radius, v}), {{radius, v}, {-radius, v}, true, {0, v + radius}},
        Line({-radius, v}, {-radius, -v}), {{-radius, -v}, {radius, -v}, true, {0, -v - radius}}});
}

Loop RegularLoop(std::size_t sides, double across)
{
    if (sides < 3) {
        throw RecipeFailure("geometry.out-of-range", "A polygon has at least three sides", "多边形至少有三条边");
    }
    const double step = 360.0 / static_cast<double>(sides);
    const double radius = across / 2 / CosineOfDegrees(step / 2);
    const auto corner = [step, radius](std::size_t i) -> Point2 {
        const double angle = step * (static_cast<double>(i) + 0.5) - 90;
        return {radius * CosineOfDegrees(angle), radius * SineOfDegrees(angle)};
    };
    std::vector<Segment> segments;
    for (std::size_t i = 0; i < sides; ++i) {
        segments.push_back(Line(corner(i), corner((i + 1) % sides)));
    }
    return PathLoop(std::move(segments));
}

Loop PolygonLoop(const RecipeValue& points, const MemberValues& values)
{
    std::vector<PathCorner> corners;
    for (const RecipeValue& point : points.items) {
        PathCorner corner;
        if (point.kind == RecipeValue::Kind::Object) {
            const Point2 via = values.PlanePoint(*point.Find("arc"));
            const Point2 to = values.PlanePoint(*point.Find("to"));
            corner.isArcEnd = true;
            corner.via = {via.u, via.v, 0};
            corner.point = {to.u, to.v, 0};
        } else {
            const Point2 at = values.PlanePoint(point);
            corner.point = {at.u, at.v, 0};
            corner.radius = point.items.size() > 2 ? values.Number(point.items[2]) : 0;
        }
        corners.push_back(corner);
    }
    std::vector<Segment> segments;
    for (const PathSegment& segment : RoundCorners(corners, true)) {
        segments.push_back({{segment.from.x, segment.from.y}, {segment.to.x, segment.to.y}, segment.isArc,
            {segment.via.x, segment.via.y}});
    }
    return PathLoop(std::move(segments));
}

Loop Placed(const Loop& loop, const Point2& at, double turn)
{
    Loop placed = loop;
    placed.centre = TurnedPoint(loop.centre, at, turn);
    placed.turn = loop.turn + turn;
    for (Segment& segment : placed.segments) {
        segment.from = TurnedPoint(segment.from, at, turn);
        segment.to = TurnedPoint(segment.to, at, turn);
        segment.via = TurnedPoint(segment.via, at, turn);
    }
    return placed;
}

} // namespace familyfiles
