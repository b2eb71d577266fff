#include "FamilyFiles/Recipe/LoopSamples.h"

#include "FamilyFiles/Recipe/CornerRounding.h"
#include "FamilyFiles/Recipe/Frame.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace familyfiles {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kSag = 0.02;
constexpr double kMostChords = 256;
constexpr double kLeastChords = 16;

double ChordsOfCircle(double radius)
{
    const double cosine = 1 - std::min(kSag / radius, 1.0);
    return std::clamp(std::ceil(kPi / std::max(std::acos(cosine), 1e-9)), kLeastChords, kMostChords);
}

/// All points but the last of an arc.
void AddArc(std::vector<Point2>& points, const Segment& arc)
{
    const Point3 from{arc.from.u, arc.from.v, 0};
    const Point3 via{arc.via.u, arc.via.v, 0};
    const Point3 to{arc.to.u, arc.to.v, 0};
    const Point3 centre = CircleCentre(from, via, to);
    const double radius = Length(from - centre);
    const double turn = Cross(via - from, to - from).z > 0 ? 1 : -1;
    const double begin = std::atan2(from.y - centre.y, from.x - centre.x);
    double sweep = turn * (std::atan2(to.y - centre.y, to.x - centre.x) - begin);
    sweep += sweep <= 0 ? 2 * kPi : 0;
    const double count = std::max(2.0, std::ceil(ChordsOfCircle(radius) * sweep / (2 * kPi)));
    points.push_back(arc.from);
    for (double i = 1; i < count; ++i) {
        const double angle = begin + turn * sweep * i / count;
        points.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
}

std::vector<Point2> RoundSamples(const Loop& loop)
{
    std::vector<Point2> points;
    const double count = ChordsOfCircle(std::max(loop.radiusU, loop.radiusV));
    const double sine = SineOfDegrees(loop.turn);
    const double cosine = CosineOfDegrees(loop.turn);
    for (double i = 0; i < count; ++i) {
        const double u = loop.radiusU * std::cos(2 * kPi * i / count);
        const double v = loop.radiusV * std::sin(2 * kPi * i / count);
        points.push_back({loop.centre.u + u * cosine - v * sine, loop.centre.v + u * sine + v * cosine});
    }
    return points;
}

double Side(const Point2& a, const Point2& b, const Point2& c)
{
    return (b.u - a.u) * (c.v - a.v) - (b.v - a.v) * (c.u - a.u);
}

bool IsBetween(const Point2& a, const Point2& b, const Point2& c)
{
    return std::min(a.u, b.u) <= c.u && c.u <= std::max(a.u, b.u) && std::min(a.v, b.v) <= c.v &&
           c.v <= std::max(a.v, b.v);
}

bool Meet(const Point2& a, const Point2& b, const Point2& c, const Point2& d)
{
    const double abc = Side(a, b, c);
    const double abd = Side(a, b, d);
    const double cda = Side(c, d, a);
    const double cdb = Side(c, d, b);
    if (((abc > 0 && abd < 0) || (abc < 0 && abd > 0)) && ((cda > 0 && cdb < 0) || (cda < 0 && cdb > 0))) {
        return true;
    }
    return (abc == 0 && IsBetween(a, b, c)) || (abd == 0 && IsBetween(a, b, d)) || (cda == 0 && IsBetween(c, d, a)) ||
           (cdb == 0 && IsBetween(c, d, b));
}

/// A chord of a closed line, with where it lies along u.
struct Chord
{
    Point2 from;
    Point2 to;
    std::size_t index = 0;

    double Low() const { return std::min(from.u, to.u); }
    double High() const { return std::max(from.u, to.u); }
};

std::vector<Chord> ChordsOf(const std::vector<Point2>& line)
{
    std::vector<Chord> chords;
    chords.reserve(line.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        chords.push_back({line[i], line[(i + 1) % line.size()], i});
    }
    std::sort(chords.begin(), chords.end(), [](const Chord& a, const Chord& b) { return a.Low() < b.Low(); });
    return chords;
}

/// Neighbours share a point; they may only not lie on each other.
bool FoldsBack(const Chord& one, const Chord& next)
{
    return Side(one.from, one.to, next.to) == 0 &&
           (one.to.u - one.from.u) * (next.to.u - next.from.u) + (one.to.v - one.from.v) * (next.to.v - next.from.v) <
               0;
}

bool Collide(const Chord& one, const Chord& other, std::size_t count)
{
    if ((one.index + 1) % count == other.index) {
        return FoldsBack(one, other);
    }
    if ((other.index + 1) % count == one.index) {
        return FoldsBack(other, one);
    }
    return Meet(one.from, one.to, other.from, other.to);
}

} // namespace

void PlaneBox::Add(const Point2& point)
{
    low = {std::min(low.u, point.u), std::min(low.v, point.v)};
    high = {std::max(high.u, point.u), std::max(high.v, point.v)};
}

bool PlaneBox::Touches(const PlaneBox& other) const
{
    return low.u <= other.high.u && other.low.u <= high.u && low.v <= other.high.v && other.low.v <= high.v;
}

std::vector<Point2> SamplesOf(const Loop& loop)
{
    if (loop.kind != LoopKind::Path) {
        return RoundSamples(loop);
    }
    std::vector<Point2> points;
    for (const Segment& segment : loop.segments) {
        if (segment.isArc) {
            AddArc(points, segment);
        } else {
            points.push_back(segment.from);
        }
    }
    return points;
}

PlaneBox BoxOf(const std::vector<Point2>& points)
{
    PlaneBox box;
    for (const Point2& point : points) {
        box.Add(point);
    }
    return box;
}

double DoubleArea(const std::vector<Point2>& points)
{
    double area = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point2& a = points[i];
        const Point2& b = points[(i + 1) % points.size()];
        area += a.u * b.v - b.u * a.v;
    }
    return area;
}

bool IsInside(const Point2& point, const std::vector<Point2>& line)
{
    bool isInside = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const Point2& a = line[i];
        const Point2& b = line[(i + 1) % line.size()];
        if ((a.v > point.v) != (b.v > point.v) && point.u < (b.u - a.u) * (point.v - a.v) / (b.v - a.v) + a.u) {
            isInside = !isInside;
        }
    }
    return isInside;
}

bool CrossesItself(const std::vector<Point2>& line)
{
    const std::vector<Chord> chords = ChordsOf(line);
    for (std::size_t i = 0; i < chords.size(); ++i) {
        for (std::size_t j = i + 1; j < chords.size() && chords[j].Low() <= chords[i].High(); ++j) {
            if (Collide(chords[i], chords[j], chords.size())) {
                return true;
            }
        }
    }
    return false;
}

bool Cross(const std::vector<Point2>& one, const std::vector<Point2>& other)
{
    const PlaneBox box = BoxOf(other);
    for (std::size_t i = 0; i < one.size(); ++i) {
        PlaneBox chord;
        chord.Add(one[i]);
        chord.Add(one[(i + 1) % one.size()]);
        if (!chord.Touches(box)) {
            continue;
        }
        for (std::size_t j = 0; j < other.size(); ++j) {
            if (Meet(one[i], one[(i + 1) % one.size()], other[j], other[(j + 1) % other.size()])) {
                return true;
            }
        }
    }
    return false;
}

} // namespace familyfiles
