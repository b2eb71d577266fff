#include "FamilyFiles/Recipe/PathMaking.h"

#include "FamilyFiles/Recipe/CornerRounding.h"
#include "FamilyFiles/Recipe/LoopSamples.h"
#include "FamilyFiles/Recipe/ProfileMaking.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Sine below which one segment goes on in the direction of the one before.
constexpr double kSmooth = 1e-6;

std::vector<PathCorner> CornersOf(const RecipeValue& members, const MemberValues& values)
{
    const double bend = values.Number(members, "bend", 0);
    std::vector<PathCorner> corners;
    for (const RecipeValue& point : members.Find("path")->items) {
        PathCorner corner;
        if (point.kind == RecipeValue::Kind::Object) {
            corner.isArcEnd = true;
            corner.via = values.Point(*point.Find("arc"));
            corner.point = values.Point(*point.Find("to"));
        } else {
            corner.point = values.Point(point);
            corner.radius = point.items.size() > 3 ? values.Number(point.items[3]) : bend;
        }
        corners.push_back(corner);
    }
    return corners;
}

bool HasSharpCorners(const std::vector<PathSegment>& path)
{
    for (std::size_t i = 1; i < path.size(); ++i) {
        const Point3 before = EndDirection(path[i - 1]);
        const Point3 after = StartDirection(path[i]);
        if (Dot(before, after) < -1 + kSmooth) {
            throw RecipeFailure("geometry.self-intersection", "A path turns back on itself", "路径折返");
        }
        if (Length(Cross(before, after)) > kSmooth) {
            return true;
        }
    }
    return false;
}

/// How far the profile reaches from its path to any side.
double ReachOf(const Profile& profile)
{
    double reach = 0;
    for (const Point2& point : SamplesOf(profile.outline)) {
        reach = std::max(reach, std::hypot(point.u, point.v));
    }
    return reach;
}

/// How far the profile in @p frame reaches towards the unit direction @p towards.
double ReachTowards(const std::vector<Point2>& outline, const Frame& frame, const Point3& towards)
{
    double reach = 0;
    for (const Point2& point : outline) {
        reach = std::max(reach, Dot(frame.At(point.u, point.v, 0) - frame.origin, towards));
    }
    return reach;
}

/// The frame behind an arc, turned as little as possible on the way.
Frame BehindArc(const Frame& frame, const PathSegment& arc)
{
    const Point3 axis = Normalised(Cross(arc.via - arc.from, arc.to - arc.from));
    const Point3 centre = CircleCentre(arc.from, arc.via, arc.to);
    const Point3 begin = arc.from - centre;
    const Point3 end = arc.to - centre;
    double angle = std::atan2(Dot(Cross(begin, end), axis), Dot(begin, end)) * 57.295779513082323;
    angle += angle < 0 ? 360 : 0;
    Frame turned = frame;
    turned.u = Turned(frame.u, axis, angle);
    turned.v = Turned(frame.v, axis, angle);
    turned.w = Turned(frame.w, axis, angle);
    return turned;
}

void CheckBends(const SweptShape& swept)
{
    const std::vector<Point2> outline = SamplesOf(swept.section.outline);
    Frame frame = swept.place;
    for (const PathSegment& segment : swept.path) {
        if (!segment.isArc) {
            continue;
        }
        const Point3 inward = CircleCentre(segment.from, segment.via, segment.to) - segment.from;
        if (ReachTowards(outline, frame, Normalised(inward)) > Length(inward) * (1 - 1e-9)) {
            throw RecipeFailure("geometry.self-intersection", "A path bends more tightly than its profile is wide",
                "路径弯曲半径小于轮廓宽度");
        }
        frame = BehindArc(frame, segment);
    }
}

/// Two chords stand for an arc: this is a coarse look.
Point3 PointAlong(const PathSegment& segment, double part)
{
    if (!segment.isArc) {
        return segment.from + (segment.to - segment.from) * part;
    }
    return part < 0.5 ? segment.from + (segment.via - segment.from) * (2 * part)
                      : segment.via + (segment.to - segment.via) * (2 * part - 1);
}

/// mm between two legs, seen coarsely.
double GapBetween(const PathSegment& one, const PathSegment& other)
{
    constexpr int pieces = 24;
    double gap = 1e300;
    for (int i = 0; i <= pieces; ++i) {
        for (int j = 0; j <= pieces; ++j) {
            const Point3 a = PointAlong(one, static_cast<double>(i) / pieces);
            const Point3 b = PointAlong(other, static_cast<double>(j) / pieces);
            gap = std::min(gap, Length(a - b));
        }
    }
    return gap;
}

/// Legs with a long way between them keep the profile's width apart. Those with a short way are neighbours, about which
/// the bends' radii say all.
void CheckGaps(const SweptShape& swept)
{
    const double reach = ReachOf(swept.section);
    for (std::size_t i = 0; i < swept.path.size(); ++i) {
        double way = 0;
        for (std::size_t j = i + 2; j < swept.path.size(); ++j) {
            way += Length(swept.path[j - 1].to - swept.path[j - 1].from);
            if (way > 4 * reach && GapBetween(swept.path[i], swept.path[j]) < reach) {
                throw RecipeFailure("geometry.self-intersection", "A path runs through itself", "路径自相交");
            }
        }
    }
}

Frame StartFrame(const std::vector<PathSegment>& path, double turn)
{
    return MakeFrame(path.front().from, StartDirection(path.front()), turn);
}

void WantFit(const LoftShape& loft)
{
    const Profile& first = loft.sections.front().section;
    for (const LoftSection& section : loft.sections) {
        if (section.section.holes.size() != first.holes.size()) {
            throw RecipeFailure(
                "geometry.failed", "The sections of a loft have different numbers of holes", "放样各截面的孔数不同");
        }
    }
}

/// Each section lies ahead of the one before, or the skin would run through itself.
void WantForward(const LoftShape& loft)
{
    for (std::size_t i = 1; i < loft.sections.size(); ++i) {
        const Frame& before = loft.sections[i - 1].place;
        const Frame& after = loft.sections[i].place;
        const Point3 step = after.origin - before.origin;
        if (Length(step) < 0.1 || Dot(step, before.w) <= 0 || Dot(step, after.w) <= 0) {
            throw RecipeFailure("geometry.self-intersection",
                "A section of a loft does not lie ahead of the one before", "放样截面没有位于前一截面之前方");
        }
    }
}

} // namespace

SweptShape MakeSweep(const RecipeValue& members, const MemberValues& values)
{
    SweptShape swept;
    swept.section = MakeProfile(*members.Find("profile"), values);
    swept.path = RoundCorners(CornersOf(members, values), false);
    if (swept.path.empty()) {
        throw RecipeFailure("geometry.failed", "A path has no length", "路径没有长度");
    }
    swept.place = StartFrame(swept.path, values.Number(members, "turn", 0));
    swept.hasSharpCorners = HasSharpCorners(swept.path);
    CheckBends(swept);
    CheckGaps(swept);
    return swept;
}

LoftShape MakeLoft(const RecipeValue& members, const MemberValues& values)
{
    LoftShape loft;
    loft.isRuled = MemberValues::Flag(members, "ruled", false);
    const Point3 axis = values.Axis(members, "axis", {0, 0, 1});
    for (const RecipeValue& item : members.Find("sections")->items) {
        LoftSection section;
        section.section = MakeProfile(*item.Find("profile"), values);
        section.place =
            MakeFrame(values.Point(item, "at"), values.Axis(item, "axis", axis), values.Number(item, "turn", 0));
        loft.sections.push_back(std::move(section));
    }
    if (loft.sections.size() < 2) {
        throw RecipeFailure("geometry.failed", "A loft needs two sections", "放样至少需要两个截面");
    }
    WantFit(loft);
    WantForward(loft);
    return loft;
}

} // namespace familyfiles
