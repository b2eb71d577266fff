#include "FamilyFiles/Recipe/CornerRounding.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <cmath>

namespace familyfiles {

namespace {

/// mm below which two points are one.
constexpr double kSamePoint = 1e-7;

/// Sine below which two legs lie on one line.
constexpr double kStraight = 1e-9;

/// Where a rounding leaves one leg and reaches the next.
struct Rounding
{
    Point3 begin;
    Point3 end;
    Point3 middle;
    bool isArc = false;
};

[[noreturn]] void Refuse(const char* english, const char* chinese)
{
    throw RecipeFailure("geometry.failed", english, chinese);
}

/// The arc of a corner's radius that touches both legs.
Rounding RoundingAt(const Point3& before, const PathCorner& corner, const Point3& after)
{
    Rounding rounding{corner.point, corner.point, corner.point};
    const Point3 in = before - corner.point;
    const Point3 out = after - corner.point;
    if (corner.radius <= 0 || Length(in) < kSamePoint || Length(out) < kSamePoint) {
        return rounding;
    }
    const Point3 a = Normalised(in);
    const Point3 b = Normalised(out);
    const double sine = Length(Cross(a, b));
    const double cosine = Dot(a, b);
    if (sine < kStraight) {
        if (cosine > 0) {
            Refuse("A path turns back on itself", "路径折返");
        }
        return rounding;
    }
    // Half the angle between the legs: tangent length is radius / tan, distance of the centre radius / sin.
    const double tangent = sine / (1 + cosine);
    const double leg = corner.radius / tangent;
    const double slack = kSamePoint * 10;
    if (leg > Length(in) + slack || leg > Length(out) + slack) {
        Refuse("A corner's radius is too large for the lengths beside it", "圆角半径大于相邻段所能容纳");
    }
    const double toCentre = corner.radius * std::sqrt(1 + 1 / (tangent * tangent));
    const Point3 inward = Normalised(a + b);
    rounding.begin = corner.point + a * leg;
    rounding.end = corner.point + b * leg;
    rounding.middle = corner.point + inward * (toCentre - corner.radius);
    rounding.isArc = true;
    return rounding;
}

/// Corners before and after an arc are not rounded: there is no straight leg to touch.
Rounding RoundingOf(const std::vector<PathCorner>& corners, std::size_t index, bool isClosed)
{
    const std::size_t count = corners.size();
    const PathCorner& corner = corners[index];
    const bool isEnd = !isClosed && (index == 0 || index + 1 == count);
    const PathCorner& next = corners[(index + 1) % count];
    if (isEnd || corner.isArcEnd || next.isArcEnd) {
        return {corner.point, corner.point, corner.point};
    }
    return RoundingAt(corners[(index + count - 1) % count].point, corner, next.point);
}

void AddArc(std::vector<PathSegment>& path, const Point3& from, const Point3& via, const Point3& to)
{
    const Point3 one = via - from;
    const Point3 other = to - from;
    if (Length(other) < kSamePoint || Length(Cross(one, other)) < kStraight * Length(one) * Length(other)) {
        Refuse("The three points of an arc lie on a line", "圆弧的三个点共线");
    }
    path.push_back({from, to, true, via});
}

void AddLine(std::vector<PathSegment>& path, const Point3& from, const Point3& to)
{
    if (Length(to - from) > kSamePoint) {
        path.push_back({from, to, false, {}});
    }
}

/// Two roundings on one leg must not need more of it than there is.
void WantForward(const Point3& from, const Point3& to, const Point3& along)
{
    const Point3 leg = to - from;
    if (Length(leg) > kSamePoint * 10 && Dot(leg, along) < 0) {
        Refuse("A corner's radius is too large for the lengths beside it", "圆角半径大于相邻段所能容纳");
    }
}

Point3 CircleTangent(const PathSegment& segment, const Point3& at)
{
    const Point3 normal = Cross(segment.via - segment.from, segment.to - segment.from);
    const Point3 centre = CircleCentre(segment.from, segment.via, segment.to);
    return Normalised(Cross(normal, at - centre));
}

} // namespace

std::vector<PathSegment> RoundCorners(const std::vector<PathCorner>& corners, bool isClosed)
{
    const std::size_t count = corners.size();
    if (count < (isClosed ? 3U : 2U) && !(count == 2 && (corners[0].isArcEnd || corners[1].isArcEnd))) {
        Refuse("An outline needs three points, a path two", "轮廓至少需要三个点，路径至少需要两个点");
    }
    std::vector<Rounding> roundings;
    for (std::size_t i = 0; i < count; ++i) {
        roundings.push_back(RoundingOf(corners, i, isClosed));
    }
    std::vector<PathSegment> path;
    const std::size_t legs = isClosed ? count : count - 1;
    for (std::size_t i = 0; i < legs; ++i) {
        const Rounding& from = roundings[i];
        const Rounding& to = roundings[(i + 1) % count];
        const PathCorner& end = corners[(i + 1) % count];
        if (end.isArcEnd) {
            AddArc(path, from.end, end.via, to.begin);
        } else {
            WantForward(from.end, to.begin, end.point - corners[i].point);
            AddLine(path, from.end, to.begin);
        }
        if (to.isArc) {
            AddArc(path, to.begin, to.middle, to.end);
        }
    }
    return path;
}

Point3 StartDirection(const PathSegment& segment)
{
    return segment.isArc ? CircleTangent(segment, segment.from) : Normalised(segment.to - segment.from);
}

Point3 EndDirection(const PathSegment& segment)
{
    return segment.isArc ? CircleTangent(segment, segment.to) : Normalised(segment.to - segment.from);
}

Point3 CircleCentre(const Point3& a, const Point3& b, const Point3& c)
{
    const Point3 ab = b - a;
    const Point3 ac = c - a;
    const Point3 normal = Cross(ab, ac);
    const double scale = 2 * Dot(normal, normal);
    const Point3 offset = Cross(normal, ab) * Dot(ac, ac) + Cross(ac, normal) * Dot(ab, ab);
    return a + offset * (1 / scale);
}

} // namespace familyfiles
