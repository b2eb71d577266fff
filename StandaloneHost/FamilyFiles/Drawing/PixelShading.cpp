#include "FamilyFiles/Drawing/PixelShading.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

using Colour = std::array<double, 3>;

// Directions towards the lights in the viewer's system: a main one from the upper left, a weak one from the right.
const Point3 kMain = Normalised({-0.50, 0.75, 0.80});
const Point3 kFill = Normalised({0.85, 0.05, 0.50});
const Point3 kHalfway = Normalised(kMain + Point3{0, 0, 1});

constexpr double kAmbient = 0.34;
constexpr double kMainStrength = 0.72;
constexpr double kFillStrength = 0.16;
constexpr double kRimStrength = 0.22;

/// How much darker an edge is.
constexpr double kEdgeStrength = 0.55;

double Positive(double value)
{
    return std::max(value, 0.0);
}

double Power(double base, int exponent)
{
    double result = 1;
    for (int i = 0; i < exponent; ++i) {
        result *= base;
    }
    return result;
}

} // namespace

PixelShading::PixelShading(const PixelBuffers& buffers, const std::vector<MaterialLook>& materials, int lineWidth)
    : m_buffers(buffers), m_materials(materials), m_lineWidth(lineWidth)
{
}

std::array<double, 3> PixelShading::ColourAt(int column, int row) const
{
    Colour colour = Lit(m_buffers.At(column, row));
    const double factor = (1 - kEdgeStrength * EdgeAt(column, row)) * (1 - NearnessAt(column, row));
    for (double& part : colour) {
        part = std::clamp(part * factor, 0.0, 1.0);
    }
    return colour;
}

std::array<double, 3> PixelShading::Lit(const PixelSample& sample) const
{
    const MaterialLook& look = m_materials[sample.material];
    const Point3 normal{sample.normalX, sample.normalY, sample.normalZ};
    const double sky = 0.5 + 0.5 * normal.y;
    const double light = kAmbient * (0.72 + 0.28 * sky) + kMainStrength * Positive(Dot(normal, kMain)) +
                         kFillStrength * Positive(Dot(normal, kFill));
    const double shine = look.gloss * Power(Positive(Dot(normal, kHalfway)), static_cast<int>(look.sharpness));
    const double rim = kRimStrength * Power(1 - Positive(normal.z), 3) * (0.35 + 0.65 * sky);
    Colour colour{};
    for (std::size_t i = 0; i < colour.size(); ++i) {
        const double own = look.colour[i] / 255.0;
        const double highlight = look.metal * own + (1 - look.metal);
        colour[i] = own * light + shine * highlight + rim * (0.5 + 0.5 * own);
    }
    return colour;
}

const PixelSample* PixelShading::Neighbour(int column, int row) const
{
    if (column < 0 || row < 0 || column >= m_buffers.side || row >= m_buffers.side) {
        return nullptr;
    }
    const PixelSample& sample = m_buffers.At(column, row);
    return sample.isCovered ? &sample : nullptr;
}

/// 1 on an edge: where the surface bends sharply, another material begins, a nearer surface ends, or the body does.
double PixelShading::EdgeAt(int column, int row) const
{
    const PixelSample& sample = m_buffers.At(column, row);
    const int w = m_lineWidth;
    const std::array<std::array<int, 2>, 4> steps{{{w, 0}, {-w, 0}, {0, w}, {0, -w}}};
    double edge = 0;
    for (const auto& [dx, dy] : steps) {
        const PixelSample* other = Neighbour(column + dx, row + dy);
        if (other == nullptr) {
            edge = std::max(edge, 0.8);
            continue;
        }
        const double alike =
            sample.normalX * other->normalX + sample.normalY * other->normalY + sample.normalZ * other->normalZ;
        // What a slanting surface recedes by itself is no step.
        const double slope = std::min(1.0 / std::max(static_cast<double>(sample.normalZ), 0.05), 20.0);
        const double step = sample.depth - other->depth;
        if (step > w * slope + 2.0 * w) {
            edge = std::max(edge, 0.9);
        }
        if (other->material != sample.material) {
            edge = std::max(edge, 0.6);
        }
        edge = std::max(edge, 0.6 * std::clamp((0.82 - alike) * 4, 0.0, 1.0));
    }
    return edge;
}

/// How much of the light from around is kept off by nearer surfaces beside the sample.
double PixelShading::NearnessAt(int column, int row) const
{
    static constexpr std::array<std::array<int, 2>, 8> directions{
        {{2, 0}, {-2, 0}, {0, 2}, {0, -2}, {1, 1}, {-1, 1}, {1, -1}, {-1, -1}}};
    const PixelSample& sample = m_buffers.At(column, row);
    const double reach = m_buffers.side * 0.012;
    double blocked = 0;
    for (int ring = 1; ring <= 2; ++ring) {
        for (const auto& [dx, dy] : directions) {
            const int x = static_cast<int>(dx * reach * ring / 2);
            const int y = static_cast<int>(dy * reach * ring / 2);
            const PixelSample* other = Neighbour(column + x, row + y);
            if (other == nullptr) {
                continue;
            }
            // Height of the other sample above this one's tangent plane.
            const double height = static_cast<double>(sample.normalX) * x - static_cast<double>(sample.normalY) * y +
                                  sample.normalZ * (static_cast<double>(other->depth) - sample.depth);
            const double distance = std::hypot(static_cast<double>(x), static_cast<double>(y));
            const double angle = height / distance;
            if (angle > 0.08) {
                blocked += std::min(angle, 1.0) / (1 + Positive(angle - 2));
            }
        }
    }
    return std::min(blocked / 16 * 0.75, 0.45);
}

} // namespace familyfiles
