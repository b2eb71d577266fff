#include "FamilyFiles/Recipe/ProfileChecks.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// mm² below which an outline has no inside.
constexpr double kLeastArea = 1e-3;

/// mm that must remain between two circles.
constexpr double kLeastGap = 1e-3;

[[noreturn]] void Refuse(const char* english, const char* chinese)
{
    throw RecipeFailure("geometry.self-intersection", english, chinese);
}

void Reverse(Loop& loop)
{
    std::reverse(loop.segments.begin(), loop.segments.end());
    for (Segment& segment : loop.segments) {
        std::swap(segment.from, segment.to);
    }
}

double Distance(const Point2& a, const Point2& b)
{
    return std::hypot(a.u - b.u, a.v - b.v);
}

bool AreCircles(const Loop& one, const Loop& other)
{
    return one.kind == LoopKind::Circle && other.kind == LoopKind::Circle;
}

/// A hole with its points and their box.
struct Hole
{
    const Loop* loop = nullptr;
    std::vector<Point2> points;
    PlaneBox box;
};

bool IsWithin(const Hole& hole, const Loop& outline, const std::vector<Point2>& outlinePoints)
{
    if (AreCircles(*hole.loop, outline)) {
        return Distance(hole.loop->centre, outline.centre) + hole.loop->radiusU + kLeastGap < outline.radiusU;
    }
    return IsInside(hole.points.front(), outlinePoints) && !Cross(outlinePoints, hole.points);
}

bool AreApart(const Hole& one, const Hole& other)
{
    if (AreCircles(*one.loop, *other.loop)) {
        return Distance(one.loop->centre, other.loop->centre) > one.loop->radiusU + other.loop->radiusU + kLeastGap;
    }
    return !Cross(one.points, other.points) && !IsInside(one.points.front(), other.points) &&
           !IsInside(other.points.front(), one.points);
}

std::vector<Hole> HolesOf(Profile& profile)
{
    std::vector<Hole> holes;
    holes.reserve(profile.holes.size());
    for (Loop& loop : profile.holes) {
        Hole hole{&loop, SamplesOf(loop), {}};
        hole.box = BoxOf(hole.points);
        holes.push_back(std::move(hole));
    }
    return holes;
}

/// Compares only holes whose boxes meet, found by going along u.
void CheckApart(std::vector<Hole>& holes)
{
    std::sort(holes.begin(), holes.end(), [](const Hole& a, const Hole& b) { return a.box.low.u < b.box.low.u; });
    for (std::size_t i = 0; i < holes.size(); ++i) {
        for (std::size_t j = i + 1; j < holes.size() && holes[j].box.low.u <= holes[i].box.high.u; ++j) {
            if (holes[i].box.Touches(holes[j].box) && !AreApart(holes[i], holes[j])) {
                Refuse("Two holes of a profile touch", "轮廓的两个孔相碰");
            }
        }
    }
}

} // namespace

void CheckOutline(Loop& outline)
{
    const std::vector<Point2> points = SamplesOf(outline);
    const double area = DoubleArea(points);
    if (points.size() < 3 || std::abs(area) < kLeastArea) {
        Refuse("An outline has no inside", "轮廓没有面积");
    }
    if (CrossesItself(points)) {
        Refuse("An outline crosses itself", "轮廓自相交");
    }
    if (area < 0) {
        Reverse(outline);
    }
}

void CheckHoles(Profile& profile)
{
    const std::vector<Point2> outline = SamplesOf(profile.outline);
    std::vector<Hole> holes = HolesOf(profile);
    for (const Hole& hole : holes) {
        if (!IsWithin(hole, profile.outline, outline)) {
            Refuse("A hole is not wholly inside its outline", "孔没有完全位于轮廓之内");
        }
    }
    CheckApart(holes);
}

} // namespace familyfiles
