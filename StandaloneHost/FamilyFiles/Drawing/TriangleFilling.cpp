#include "FamilyFiles/Drawing/TriangleFilling.h"

#include "FamilyFiles/Drawing/RowSpan.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Part of the square on each side.
constexpr double kMargin = 0.05;

/// The viewer's axes.
struct ViewAxes
{
    Point3 right;
    Point3 up;
    Point3 toViewer;
};

ViewAxes AxesOf(const Point3& camera)
{
    ViewAxes axes;
    axes.toViewer = Normalised(camera);
    const Point3 level = Cross({0, 0, 1}, axes.toViewer);
    axes.right = Length(level) < 1e-9 ? Point3{1, 0, 0} : Normalised(level);
    axes.up = Cross(axes.toViewer, axes.right);
    return axes;
}

/// A vertex in samples, y downwards.
struct SeenVertex
{
    double x = 0;
    double y = 0;
    double depth = 0;
    Point3 normal;
};

std::vector<SeenVertex> Seen(const TriangleMesh& mesh, const ViewAxes& axes)
{
    std::vector<SeenVertex> seen;
    seen.reserve(mesh.vertices.size());
    const auto turned = [&axes](const Point3& p) -> Point3 {
        return {Dot(p, axes.right), Dot(p, axes.up), Dot(p, axes.toViewer)};
    };
    for (const MeshVertex& vertex : mesh.vertices) {
        const Point3 place = turned(vertex.position);
        seen.push_back({place.x, place.y, place.z, turned(vertex.normal)});
    }
    return seen;
}

void FitInto(std::vector<SeenVertex>& vertices, int side)
{
    double low[2] = {1e300, 1e300};
    double high[2] = {-1e300, -1e300};
    for (const SeenVertex& vertex : vertices) {
        low[0] = std::min(low[0], vertex.x);
        high[0] = std::max(high[0], vertex.x);
        low[1] = std::min(low[1], vertex.y);
        high[1] = std::max(high[1], vertex.y);
    }
    const double extent = std::max({high[0] - low[0], high[1] - low[1], 1e-6});
    const double scale = side * (1 - 2 * kMargin) / extent;
    for (SeenVertex& vertex : vertices) {
        vertex.x = side / 2.0 + (vertex.x - (low[0] + high[0]) / 2) * scale;
        vertex.y = side / 2.0 - (vertex.y - (low[1] + high[1]) / 2) * scale;
        vertex.depth *= scale;
    }
}

/// Fills the samples whose centres lie in a triangle or on its border.
class Filler
{
public:
    Filler(PixelBuffers& buffers, const SeenVertex& a, const SeenVertex& b, const SeenVertex& c, std::uint16_t material)
        : m_buffers(buffers), m_a(a), m_b(b), m_c(c), m_material(material), m_area(Side(a, b, c.x, c.y))
    {
    }

    void Fill()
    {
        if (m_area >= 0) {
            return; // seen from behind; y points down, so the front runs clockwise
        }
        const int side = m_buffers.side;
        const int rowBegin = std::max(0, static_cast<int>(std::ceil(std::min({m_a.y, m_b.y, m_c.y}) - 0.5)));
        const int rowEnd = std::min(side - 1, static_cast<int>(std::floor(std::max({m_a.y, m_b.y, m_c.y}) - 0.5)));
        for (int row = rowBegin; row <= rowEnd; ++row) {
            RowSpan span(side);
            span.Cut(m_a.x, m_a.y, m_b.x, m_b.y, row + 0.5, true);
            span.Cut(m_b.x, m_b.y, m_c.x, m_c.y, row + 0.5, true);
            span.Cut(m_c.x, m_c.y, m_a.x, m_a.y, row + 0.5, true);
            for (int column = span.First(); column <= span.Last(); ++column) {
                Visit(column, row);
            }
        }
    }

private:
    static double Side(const SeenVertex& from, const SeenVertex& to, double x, double y)
    {
        return (to.x - from.x) * (y - from.y) - (to.y - from.y) * (x - from.x);
    }

    void Visit(int column, int row)
    {
        const double x = column + 0.5;
        const double y = row + 0.5;
        const double a = Side(m_b, m_c, x, y) / m_area;
        const double b = Side(m_c, m_a, x, y) / m_area;
        const double c = 1 - a - b;
        const auto depth = static_cast<float>(a * m_a.depth + b * m_b.depth + c * m_c.depth);
        PixelSample& sample = m_buffers.At(column, row);
        if (sample.depth >= depth) {
            return;
        }
        const Point3 normal = m_a.normal * a + m_b.normal * b + m_c.normal * c;
        const double scale = PixelSample::kNormalScale / std::max(Length(normal), 1e-12);
        const auto rounded = [scale](double part) { return static_cast<std::int16_t>(std::lround(part * scale)); };
        sample = {depth, rounded(normal.x), rounded(normal.y), rounded(normal.z), m_material};
    }

    PixelBuffers& m_buffers;
    const SeenVertex& m_a;
    const SeenVertex& m_b;
    const SeenVertex& m_c;
    std::uint16_t m_material;
    double m_area;
};

} // namespace

PixelBuffers FillTriangles(const TriangleMesh& mesh, const Point3& camera, int side)
{
    PixelBuffers buffers(side);
    std::vector<SeenVertex> vertices = Seen(mesh, AxesOf(camera));
    FitInto(vertices, side);
    for (const MeshTriangle& triangle : mesh.triangles) {
        const auto& [a, b, c] = triangle.vertices;
        Filler(buffers, vertices[a], vertices[b], vertices[c], triangle.material).Fill();
    }
    return buffers;
}

} // namespace familyfiles
