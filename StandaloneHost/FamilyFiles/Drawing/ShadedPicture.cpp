#include "FamilyFiles/Drawing/ShadedPicture.h"

#include "FamilyFiles/Drawing/PixelShading.h"
#include "FamilyFiles/Drawing/TriangleFilling.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Samples along a pixel's side; small pictures need more, because all their detail is below a pixel.
int SamplesFor(int pixels)
{
    return pixels <= 96 ? 8 : (pixels <= 192 ? 5 : (pixels <= 320 ? 4 : 3));
}

std::vector<MaterialLook> LooksOf(const TriangleMesh& mesh)
{
    std::vector<MaterialLook> looks;
    for (const std::string& name : mesh.materials) {
        looks.push_back(FindMaterial(name).value_or(MaterialLook{{150, 150, 150}}));
    }
    return looks;
}

int ToByte(double value)
{
    return std::clamp(static_cast<int>(std::lround(value * 255)), 0, 255);
}

/// The mean of a pixel's samples; those that are not covered make it transparent.
class PixelMean
{
public:
    void Add(const std::array<double, 3>& colour)
    {
        for (std::size_t i = 0; i < m_sum.size(); ++i) {
            m_sum[i] += colour[i];
        }
        ++m_covered;
    }

    QRgb Value(int samples, double factor) const
    {
        const double part = factor / m_covered;
        return qRgba(ToByte(m_sum[0] * part), ToByte(m_sum[1] * part), ToByte(m_sum[2] * part),
            ToByte(static_cast<double>(m_covered) / samples));
    }

private:
    std::array<double, 3> m_sum{};
    int m_covered = 0;
};

/// @param left, top the pixel's first sample
QRgb PixelOf(const PixelBuffers& buffers, const PixelShading& shading, int left, int top, int samples)
{
    PixelMean mean;
    double nearness = -1;
    for (int row = top; row < top + samples; ++row) {
        for (int column = left; column < left + samples; ++column) {
            if (!buffers.At(column, row).IsCovered()) {
                continue;
            }
            mean.Add(shading.ColourAt(column, row));
            nearness = nearness < 0 ? shading.NearnessAt(column, row) : nearness;
        }
    }
    return nearness < 0 ? qRgba(0, 0, 0, 0) : mean.Value(samples * samples, 1 - nearness);
}

} // namespace

QImage ShadedPicture(const TriangleMesh& mesh, const Point3& camera, int pixels)
{
    const int samples = SamplesFor(pixels);
    const PixelBuffers buffers = FillTriangles(mesh, camera, pixels * samples);
    const std::vector<MaterialLook> looks = LooksOf(mesh);
    const int lineWidth = std::max(1, static_cast<int>(std::lround(pixels * samples / 400.0)));
    const PixelShading shading(buffers, looks, lineWidth);
    QImage picture(pixels, pixels, QImage::Format_ARGB32);
    for (int row = 0; row < pixels; ++row) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(row));
        for (int column = 0; column < pixels; ++column) {
            line[column] = PixelOf(buffers, shading, column * samples, row * samples, samples);
        }
    }
    return picture;
}

} // namespace familyfiles
