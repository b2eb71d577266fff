#include "FamilyFiles/Drawing/LineOverlaps.h"

#include "FamilyFiles/Recipe/LoopSamples.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace familyfiles {

namespace {

constexpr double kPi = 3.14159265358979323846;

/// Radians between directions that count as one.
constexpr double kAngle = 2e-4;

/// A part of a line, from where to where along it.
struct Span
{
    double begin = 0;
    double end = 0;
};

/// An endless line through the drawing with the parts of it that are drawn.
struct Line
{
    Point2 along;
    double offset = 0;
    std::vector<Span> spans;
    std::vector<Span> covered;
};

/// Where a piece lies: its line in a form that does not depend on its direction.
struct Place
{
    double angle = 0;
    double offset = 0;
    Point2 along;
};

/// Sorts pieces by the lines they lie on.
class LineTable
{
public:
    /// @param centre lines are compared near it, so that a small difference of angle does not count far away
    LineTable(const Point2& centre, double tolerance) : m_centre(centre), m_tolerance(tolerance) {}

    void Add(const LineSegment& piece, bool isCovering)
    {
        const Place place = PlaceOf(piece);
        Line& line = LineAt(place);
        const double a = Along(line, piece.from);
        const double b = Along(line, piece.to);
        (isCovering ? line.covered : line.spans).push_back({std::min(a, b), std::max(a, b)});
    }

    std::vector<LineSegment> Rest()
    {
        std::vector<LineSegment> rest;
        for (Line& line : m_lines) {
            for (const Span& span : Uncovered(Joined(line.spans), Joined(line.covered))) {
                if (span.end - span.begin > m_tolerance) {
                    rest.push_back({PointOn(line, span.begin), PointOn(line, span.end)});
                }
            }
        }
        return rest;
    }

private:
    Place PlaceOf(const LineSegment& piece) const
    {
        double u = piece.to.u - piece.from.u;
        double v = piece.to.v - piece.from.v;
        double angle = std::atan2(v, u);
        // A line has no direction; nearly level ones must not fall to both ends of the range.
        if (angle < -kAngle || angle > kPi - kAngle) {
            angle += angle < 0 ? kPi : -kPi;
            u = -u;
            v = -v;
        }
        const double length = std::hypot(u, v);
        const Point2 along{u / length, v / length};
        return {angle, along.u * (piece.from.v - m_centre.v) - along.v * (piece.from.u - m_centre.u), along};
    }

    Line& LineAt(const Place& place)
    {
        const std::int64_t angle = std::llround(place.angle / kAngle);
        const std::int64_t offset = std::llround(place.offset / m_tolerance);
        for (std::int64_t a = angle - 1; a <= angle + 1; ++a) {
            for (std::int64_t o = offset - 1; o <= offset + 1; ++o) {
                const auto found = m_index.find(Key(a, o));
                if (found != m_index.end()) {
                    return m_lines[found->second];
                }
            }
        }
        m_index.emplace(Key(angle, offset), m_lines.size());
        m_lines.push_back({place.along, place.offset, {}, {}});
        return m_lines.back();
    }

    static std::uint64_t Key(std::int64_t angle, std::int64_t offset)
    {
        return (static_cast<std::uint64_t>(angle) << 40U) ^ static_cast<std::uint64_t>(offset + (1LL << 38));
    }

    double Along(const Line& line, const Point2& point) const
    {
        return line.along.u * (point.u - m_centre.u) + line.along.v * (point.v - m_centre.v);
    }

    Point2 PointOn(const Line& line, double at) const
    {
        return {m_centre.u + line.along.u * at - line.along.v * line.offset,
            m_centre.v + line.along.v * at + line.along.u * line.offset};
    }

    std::vector<Span> Joined(std::vector<Span>& spans) const
    {
        std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.begin < b.begin; });
        std::vector<Span> joined;
        for (const Span& span : spans) {
            if (!joined.empty() && span.begin <= joined.back().end + m_tolerance) {
                joined.back().end = std::max(joined.back().end, span.end);
            } else {
                joined.push_back(span);
            }
        }
        return joined;
    }

    static std::vector<Span> Uncovered(const std::vector<Span>& spans, const std::vector<Span>& covered)
    {
        std::vector<Span> rest;
        for (Span span : spans) {
            for (const Span& cover : covered) {
                if (cover.end <= span.begin || cover.begin >= span.end) {
                    continue;
                }
                if (cover.begin > span.begin) {
                    rest.push_back({span.begin, cover.begin});
                }
                span.begin = std::min(cover.end, span.end);
            }
            rest.push_back(span);
        }
        return rest;
    }

    Point2 m_centre;
    double m_tolerance;
    std::vector<Line> m_lines;
    std::unordered_map<std::uint64_t, std::size_t> m_index;
};

Point2 CentreOf(const std::vector<LineSegment>& pieces)
{
    PlaneBox box;
    for (const LineSegment& piece : pieces) {
        box.Add(piece.from);
    }
    return {(box.low.u + box.high.u) / 2, (box.low.v + box.high.v) / 2};
}

} // namespace

std::vector<LineSegment> WithoutOverlaps(
    const std::vector<LineSegment>& pieces, const std::vector<LineSegment>& covering, double tolerance)
{
    if (pieces.empty()) {
        return {};
    }
    LineTable table(CentreOf(pieces), tolerance);
    const auto add = [&table](const std::vector<LineSegment>& some, bool isCovering) {
        for (const LineSegment& piece : some) {
            if (piece.from.u != piece.to.u || piece.from.v != piece.to.v) {
                table.Add(piece, isCovering);
            }
        }
    };
    add(pieces, false);
    add(covering, true);
    return table.Rest();
}

} // namespace familyfiles
