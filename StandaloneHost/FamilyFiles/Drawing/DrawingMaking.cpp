#include "FamilyFiles/Drawing/DrawingMaking.h"

#include "FamilyFiles/Drawing/CentreLinePaths.h"
#include "FamilyFiles/Drawing/ConnectorPaths.h"
#include "FamilyFiles/Drawing/CoverageMask.h"
#include "FamilyFiles/Drawing/LineChaining.h"
#include "FamilyFiles/Drawing/LineOverlaps.h"
#include "FamilyFiles/Drawing/OutlineClosing.h"
#include "FamilyFiles/Drawing/ViewPlane.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Parts of the drawing's diagonal: below the first, two ends are one; below the second, a point is on a line.
constexpr double kGrid = 2e-5;
constexpr double kTolerance = 1e-4;

/// A piece longer than this part of the diagonal is looked at in parts: it may be an outline for a part of its length.
constexpr double kLookLength = 0.02;

/// An outline is closed across gaps up to this part of the diagonal.
constexpr double kGap = 0.1;

struct SeenLines
{
    std::vector<LineSegment> outline;
    std::vector<LineSegment> inside;
};

Point2 PointAt(const LineSegment& piece, double part)
{
    return {piece.from.u + (piece.to.u - piece.from.u) * part, piece.from.v + (piece.to.v - piece.from.v) * part};
}

/// Adds @p piece to outline or inside, cut where it changes from one to the other.
void Sort(const LineSegment& piece, const CoverageMask& mask, double lookLength, SeenLines& seen)
{
    const double length = std::hypot(piece.to.u - piece.from.u, piece.to.v - piece.from.v);
    const auto count = std::max(1, static_cast<int>(std::ceil(length / lookLength)));
    const auto isOutline = [&](int i) {
        return mask.IsAtBackground(PointAt(piece, static_cast<double>(i) / count), PointAt(piece, (i + 1.0) / count));
    };
    int begin = 0;
    bool current = isOutline(0);
    for (int i = 1; i <= count; ++i) {
        const bool next = i < count && isOutline(i);
        if (i == count || next != current) {
            (current ? seen.outline : seen.inside)
                .push_back({PointAt(piece, static_cast<double>(begin) / count),
                    PointAt(piece, static_cast<double>(i) / count)});
            begin = i;
            current = next;
        }
    }
}

class DrawingMaker
{
public:
    DrawingMaker(const TriangleMesh& mesh, DrawingView view) : m_plane(PlaneOf(view)), m_mask(mesh, m_plane)
    {
        m_drawing.low = m_mask.Low();
        m_drawing.high = m_mask.High();
        m_diagonal = std::hypot(m_drawing.high.u - m_drawing.low.u, m_drawing.high.v - m_drawing.low.v);
    }

    Drawing Make(const ProjectedLines& lines, const std::vector<CentreLine>& centreLines,
        const std::vector<ConnectorMark>& connectors)
    {
        SeenLines seen;
        for (const LineSegment& piece : lines.visible) {
            Sort(piece, m_mask, m_diagonal * kLookLength, seen);
        }
        std::vector<LineSegment> hidden = TakeOutlines(lines.hidden, seen);
        const double near = m_diagonal * kGrid;
        const std::vector<LineSegment> outline = WithoutOverlaps(seen.outline, {}, near);
        const std::vector<LineSegment> inside = WithoutOverlaps(seen.inside, outline, near);
        hidden = WithoutOverlaps(WithoutThose(hidden, lines.visible, near), inside, near);
        hidden = WithoutOverlaps(hidden, outline, near);
        Add(LineStyle::Hidden, Chained(hidden));
        Add(LineStyle::Centre, CentreLinePaths(centreLines, m_plane, m_diagonal));
        Add(LineStyle::Visible, Chained(inside));
        Add(LineStyle::Outline, Closed(outline));
        Add(LineStyle::Connector, ConnectorPaths(connectors, m_plane, m_diagonal));
        return std::move(m_drawing);
    }

private:
    std::vector<std::vector<Point2>> Chained(const std::vector<LineSegment>& pieces) const
    {
        return ChainLines(pieces, m_diagonal * kGrid, m_diagonal * kTolerance);
    }

    /// Where a piece runs along the background nothing can hide it: the kernel's algorithm errs there now and then.
    std::vector<LineSegment> TakeOutlines(const std::vector<LineSegment>& hidden, SeenLines& seen) const
    {
        std::vector<LineSegment> rest;
        for (const LineSegment& piece : hidden) {
            (m_mask.IsAtBackground(piece.from, piece.to) ? seen.outline : rest).push_back(piece);
        }
        return rest;
    }

    std::vector<std::vector<Point2>> Closed(std::vector<LineSegment> outline) const
    {
        std::vector<std::vector<Point2>> lines = Chained(outline);
        const std::vector<LineSegment> gaps = GapsOf(lines, m_mask, m_diagonal * kGap);
        if (gaps.empty()) {
            return lines;
        }
        outline.insert(outline.end(), gaps.begin(), gaps.end());
        return Chained(outline);
    }

    void Add(LineStyle style, const std::vector<std::vector<Point2>>& lines)
    {
        for (const std::vector<Point2>& line : lines) {
            m_drawing.paths.push_back({style, line});
        }
    }

    ViewPlane m_plane;
    CoverageMask m_mask;
    double m_diagonal = 0;
    Drawing m_drawing;
};

} // namespace

Drawing MakeDrawing(const ProjectedLines& lines, const TriangleMesh& mesh, DrawingView view,
    const std::vector<CentreLine>& centreLines, const std::vector<ConnectorMark>& connectors)
{
    return DrawingMaker(mesh, view).Make(lines, centreLines, connectors);
}

} // namespace familyfiles
