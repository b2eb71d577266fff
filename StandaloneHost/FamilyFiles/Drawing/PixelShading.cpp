#include "FamilyFiles/Drawing/PixelShading.h"

#include "FamilyFiles/Recipe/Point3.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

using Colour = std::array<double, 3>;

// Directions towards the lights in the viewer's system: a main one from the upper left, a weak one from the right. Of a
// block seen from its usual corner the top is brightest, the front comes next, then the right side.
const Point3 kMain = Normalised({-0.50, 0.60, 0.75});
const Point3 kFill = Normalised({0.90, 0.15, 0.45});
const Point3 kHalfway = Normalised(kMain + Point3{0, 0, 1});

constexpr double kAmbient = 0.42;
constexpr double kMainStrength = 0.60;
constexpr double kFillStrength = 0.24;
constexpr double kRimStrength = 0.20;

// How much darker edges are: where another surface begins behind, where the surface bends, where the material changes.
constexpr double kStepEdge = 0.50;
constexpr double kRimEdge = 0.42;
constexpr double kBendEdge = 0.26;
constexpr double kMaterialEdge = 0.22;

double Positive(double value)
{
    return std::max(value, 0.0);
}

double Power(double base, unsigned exponent)
{
    double result = 1;
    for (; exponent != 0; exponent >>= 1U) {
        result *= (exponent & 1U) != 0 ? base : 1;
        base *= base;
    }
    return result;
}

Point3 NormalOf(const PixelSample& sample)
{
    constexpr double scale = 1.0 / static_cast<double>(PixelSample::kNormalScale);
    return {sample.normalX * scale, sample.normalY * scale, sample.normalZ * scale};
}

/// The edge between a sample and another one beside it.
double EdgeBetween(const PixelSample& sample, const PixelSample& other, double width)
{
    const Point3 normal = NormalOf(sample);
    // What a slanting surface recedes by itself is no step.
    const double slope = std::min(1 / std::max(normal.z, 0.05), 20.0);
    const double step = static_cast<double>(sample.depth) - static_cast<double>(other.depth);
    double edge = step > width * (slope + 2) ? kStepEdge : 0;
    if (other.material != sample.material) {
        edge = std::max(edge, kMaterialEdge);
    }
    const double alike = Dot(normal, NormalOf(other));
    return std::max(edge, kBendEdge * std::clamp((0.82 - alike) * 4, 0.0, 1.0));
}

} // namespace

PixelShading::PixelShading(const PixelBuffers& buffers, const std::vector<MaterialLook>& materials, int lineWidth)
    : m_buffers(buffers), m_materials(materials), m_lineWidth(lineWidth)
{
}

std::array<double, 3> PixelShading::ColourAt(int column, int row) const
{
    Colour colour = Lit(m_buffers.At(column, row));
    const double factor = 1 - EdgeAt(column, row);
    for (double& part : colour) {
        part = std::min(part * factor, 1.0);
    }
    return colour;
}

std::array<double, 3> PixelShading::Lit(const PixelSample& sample) const
{
    const MaterialLook& look = m_materials[sample.material];
    const Point3 normal = NormalOf(sample);
    const double sky = 0.5 + 0.5 * normal.y;
    const double light = kAmbient * (0.75 + 0.25 * sky) + kMainStrength * Positive(Dot(normal, kMain)) +
                         kFillStrength * Positive(Dot(normal, kFill));
    const double shine = look.gloss * Power(Positive(Dot(normal, kHalfway)), static_cast<unsigned>(look.sharpness));
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
    return sample.IsCovered() ? &sample : nullptr;
}

double PixelShading::EdgeAt(int column, int row) const
{
    const PixelSample& sample = m_buffers.At(column, row);
    const int w = m_lineWidth;
    const std::array<std::array<int, 2>, 4> steps{{{w, 0}, {-w, 0}, {0, w}, {0, -w}}};
    double edge = 0;
    for (const auto& [dx, dy] : steps) {
        const PixelSample* other = Neighbour(column + dx, row + dy);
        edge = std::max(edge, other == nullptr ? kRimEdge : EdgeBetween(sample, *other, w));
    }
    return edge;
}

double PixelShading::NearnessAt(int column, int row) const
{
    static constexpr std::array<std::array<int, 2>, 8> directions{
        {{2, 0}, {-2, 0}, {0, 2}, {0, -2}, {1, 1}, {-1, 1}, {1, -1}, {-1, -1}}};
    const PixelSample& sample = m_buffers.At(column, row);
    const Point3 normal = NormalOf(sample);
    const double reach = m_buffers.side * 0.006;
    double blocked = 0;
    for (int ring = 1; ring <= 2; ++ring) {
        for (const auto& [dx, dy] : directions) {
            const int x = static_cast<int>(dx * reach * ring);
            const int y = static_cast<int>(dy * reach * ring);
            const PixelSample* other = Neighbour(column + x, row + y);
            if (other == nullptr) {
                continue;
            }
            // Height of the other sample above this one's tangent plane, against its distance; what stands far in front
            // keeps off little.
            const double nearer = static_cast<double>(other->depth) - static_cast<double>(sample.depth);
            const double height = normal.x * x - normal.y * y + normal.z * nearer;
            const double angle = height / std::sqrt(static_cast<double>(x * x + y * y));
            if (angle > 0.08) {
                blocked += std::min(angle, 1.0) / (1 + Positive(angle - 2));
            }
        }
    }
    return std::min(blocked / 16 * 0.7, 0.42);
}

} // namespace familyfiles
