#include "FamilyFiles/Drawing/CoverageMask.h"

#include "FamilyFiles/Drawing/RowSpan.h"
#include "FamilyFiles/Recipe/LoopSamples.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Cells along the longer side.
constexpr double kCells = 640;

/// How many cells beside a line its surroundings are looked at.
constexpr double kBeside = 2;

/// Empty cells around the component.
constexpr int kMargin = 4;

} // namespace

CoverageMask::CoverageMask(const TriangleMesh& mesh, const ViewPlane& plane)
{
    std::vector<Point2> points;
    points.reserve(mesh.vertices.size());
    for (const MeshVertex& vertex : mesh.vertices) {
        points.push_back(plane.Project(vertex.position));
    }
    const PlaneBox box = BoxOf(points);
    m_low = box.low;
    m_high = box.high;
    m_cell = std::max({m_high.u - m_low.u, m_high.v - m_low.v, 1e-6}) / kCells;
    m_columns = static_cast<int>((m_high.u - m_low.u) / m_cell) + 2 * kMargin;
    m_rows = static_cast<int>((m_high.v - m_low.v) / m_cell) + 2 * kMargin;
    m_cells.assign(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows), 0);
    for (Point2& point : points) {
        point = {(point.u - m_low.u) / m_cell + kMargin, (point.v - m_low.v) / m_cell + kMargin};
    }
    for (const MeshTriangle& triangle : mesh.triangles) {
        Fill(points[triangle.vertices[0]], points[triangle.vertices[1]], points[triangle.vertices[2]]);
    }
}

/// Takes every cell whose centre lies in the triangle or on its border. Triangles seen from behind are left out: the
/// front covers the same place.
void CoverageMask::Fill(const Point2& a, const Point2& b, const Point2& c)
{
    if ((b.u - a.u) * (c.v - a.v) <= (b.v - a.v) * (c.u - a.u)) {
        return;
    }
    const int rowBegin = std::max(0, static_cast<int>(std::ceil(std::min({a.v, b.v, c.v}) - 0.5)));
    const int rowEnd = std::min(m_rows - 1, static_cast<int>(std::floor(std::max({a.v, b.v, c.v}) - 0.5)));
    for (int row = rowBegin; row <= rowEnd; ++row) {
        RowSpan span(m_columns);
        span.Cut(a.u, a.v, b.u, b.v, row + 0.5, false);
        span.Cut(b.u, b.v, c.u, c.v, row + 0.5, false);
        span.Cut(c.u, c.v, a.u, a.v, row + 0.5, false);
        if (span.First() <= span.Last()) {
            const auto begin = m_cells.begin() + static_cast<std::ptrdiff_t>(row) * m_columns;
            std::fill(begin + span.First(), begin + span.Last() + 1, std::uint8_t{1});
        }
    }
}

bool CoverageMask::IsCovered(const Point2& point) const
{
    const int column = static_cast<int>(std::floor(point.u));
    const int row = static_cast<int>(std::floor(point.v));
    const bool isInside = column >= 0 && column < m_columns && row >= 0 && row < m_rows;
    return isInside && m_cells[static_cast<std::size_t>(row * m_columns + column)] != 0;
}

Point2 CoverageMask::InCells(const Point2& point) const
{
    return {(point.u - m_low.u) / m_cell + kMargin, (point.v - m_low.v) / m_cell + kMargin};
}

bool CoverageMask::IsAtBackground(const Point2& from, const Point2& to) const
{
    const double length = std::hypot(to.u - from.u, to.v - from.v);
    if (length == 0) {
        return false;
    }
    const Point2 middle = InCells({(from.u + to.u) / 2, (from.v + to.v) / 2});
    const Point2 beside{-(to.v - from.v) / length * kBeside, (to.u - from.u) / length * kBeside};
    return !IsCovered({middle.u + beside.u, middle.v + beside.v}) ||
           !IsCovered({middle.u - beside.u, middle.v - beside.v});
}

bool CoverageMask::RunsAlongBorder(const Point2& from, const Point2& to) const
{
    constexpr int pieces = 10;
    const double length = std::hypot(to.u - from.u, to.v - from.v);
    if (length == 0) {
        return false;
    }
    const Point2 across{-(to.v - from.v) / length, (to.u - from.u) / length};
    for (int i = 1; i < pieces; ++i) {
        const double part = static_cast<double>(i) / pieces;
        const Point2 at = InCells({from.u + (to.u - from.u) * part, from.v + (to.v - from.v) * part});
        const auto isCovered = [&](double cells) {
            return IsCovered({at.u + across.u * cells, at.v + across.v * cells});
        };
        const bool isFree = !isCovered(kBeside) || !isCovered(-kBeside);
        if (!isFree || !(isCovered(0) || isCovered(1) || isCovered(-1) || isCovered(kBeside) || isCovered(-kBeside))) {
            return false;
        }
    }
    return true;
}

} // namespace familyfiles
