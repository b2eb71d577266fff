#include "FamilyFiles/Drawing/LineChaining.h"

#include "FamilyFiles/Drawing/LineSimplifying.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

namespace familyfiles {

namespace {

using Node = std::uint32_t;

struct GridPoint
{
    std::int64_t u = 0;
    std::int64_t v = 0;

    bool operator==(const GridPoint& other) const { return u == other.u && v == other.v; }
};

std::size_t Mixed(std::size_t seed, std::size_t value)
{
    return (seed ^ value) * 0x9E3779B97F4A7C15U;
}

struct GridPointHash
{
    std::size_t operator()(const GridPoint& point) const
    {
        return Mixed(Mixed(1, static_cast<std::size_t>(point.u)), static_cast<std::size_t>(point.v)) >> 7U;
    }
};

/// Gives ends that are nearer than the grid the same number.
class NodeTable
{
public:
    explicit NodeTable(double grid) : m_grid(grid) {}

    /// A neighbouring cell of the grid may hold the same point: rounding falls either way.
    Node Of(const Point2& point)
    {
        const double u = point.u / m_grid;
        const double v = point.v / m_grid;
        const GridPoint cell{std::llround(u), std::llround(v)};
        const std::int64_t sideU = u < static_cast<double>(cell.u) ? -1 : 1;
        const std::int64_t sideV = v < static_cast<double>(cell.v) ? -1 : 1;
        for (const GridPoint& candidate : {cell, GridPoint{cell.u + sideU, cell.v}, GridPoint{cell.u, cell.v + sideV},
                 GridPoint{cell.u + sideU, cell.v + sideV}}) {
            const auto found = m_nodes.find(candidate);
            if (found != m_nodes.end()) {
                return found->second;
            }
        }
        const Node node = static_cast<Node>(m_points.size());
        m_nodes.emplace(cell, node);
        m_points.push_back(point);
        return node;
    }

    const std::vector<Point2>& Points() const { return m_points; }

private:
    double m_grid;
    std::unordered_map<GridPoint, Node, GridPointHash> m_nodes;
    std::vector<Point2> m_points;
};

std::uint64_t KeyOf(Node a, Node b)
{
    return (static_cast<std::uint64_t>(std::min(a, b)) << 32U) | std::max(a, b);
}

struct Link
{
    Node to = 0;
    std::uint32_t edge = 0;
};

/// Pieces as a graph, and the walks along it.
class LineGraph
{
public:
    LineGraph(const std::vector<LineSegment>& pieces, double grid) : m_table(grid)
    {
        std::unordered_set<std::uint64_t> known;
        known.reserve(pieces.size());
        for (const LineSegment& piece : pieces) {
            const Node from = m_table.Of(piece.from);
            const Node to = m_table.Of(piece.to);
            if (from != to && known.insert(KeyOf(from, to)).second) {
                Connect(from, to);
            }
        }
        m_isWalked.assign(m_edges, false);
    }

    std::vector<std::vector<Point2>> Lines()
    {
        std::vector<std::vector<Point2>> lines;
        for (const bool fromEnds : {true, false}) {
            for (Node node = 0; node < m_links.size(); ++node) {
                if ((m_links[node].size() != 2) == fromEnds) {
                    WalkAll(node, lines);
                }
            }
        }
        return lines;
    }

private:
    void Connect(Node from, Node to)
    {
        m_links.resize(std::max<std::size_t>(m_links.size(), std::max(from, to) + std::size_t{1}));
        m_links[from].push_back({to, m_edges});
        m_links[to].push_back({from, m_edges});
        ++m_edges;
    }

    void WalkAll(Node node, std::vector<std::vector<Point2>>& lines)
    {
        for (const Link& link : m_links[node]) {
            if (!m_isWalked[link.edge]) {
                lines.push_back(Walk(node, link));
            }
        }
    }

    std::vector<Point2> Walk(Node node, Link link)
    {
        std::vector<Point2> line{m_table.Points()[node]};
        for (;;) {
            m_isWalked[link.edge] = true;
            line.push_back(m_table.Points()[link.to]);
            const std::vector<Link>& next = m_links[link.to];
            if (next.size() != 2) {
                return line;
            }
            const Link& onward = m_isWalked[next[0].edge] ? next[1] : next[0];
            if (m_isWalked[onward.edge]) {
                return line;
            }
            link = onward;
        }
    }

    NodeTable m_table;
    std::vector<std::vector<Link>> m_links;
    std::uint32_t m_edges = 0;
    std::vector<bool> m_isWalked;
};

} // namespace

std::vector<std::vector<Point2>> ChainLines(const std::vector<LineSegment>& pieces, double grid, double tolerance)
{
    std::vector<std::vector<Point2>> lines = LineGraph(pieces, grid).Lines();
    for (std::vector<Point2>& line : lines) {
        line = Simplified(line, tolerance);
    }
    return lines;
}

std::vector<LineSegment> WithoutThose(
    const std::vector<LineSegment>& pieces, const std::vector<LineSegment>& others, double grid)
{
    NodeTable table(grid);
    std::unordered_set<std::uint64_t> known;
    for (const LineSegment& other : others) {
        known.insert(KeyOf(table.Of(other.from), table.Of(other.to)));
    }
    std::vector<LineSegment> rest;
    for (const LineSegment& piece : pieces) {
        if (known.count(KeyOf(table.Of(piece.from), table.Of(piece.to))) == 0) {
            rest.push_back(piece);
        }
    }
    return rest;
}

} // namespace familyfiles
