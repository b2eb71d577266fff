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
QRgb PixelOf(const PixelBuffers& buffers, const PixelShading& shading, int left, int top, int samples)
{
    std::array<double, 3> sum{};
    int covered = 0;
    for (int row = top; row < top + samples; ++row) {
        for (int column = left; column < left + samples; ++column) {
            if (buffers.At(column, row).isCovered) {
                const std::array<double, 3> colour = shading.ColourAt(column, row);
                for (std::size_t i = 0; i < sum.size(); ++i) {
                    sum[i] += colour[i];
                }
                ++covered;
            }
        }
    }
    if (covered == 0) {
        return qRgba(0, 0, 0, 0);
    }
    return qRgba(ToByte(sum[0] / covered), ToByte(sum[1] / covered), ToByte(sum[2] / covered),
        ToByte(static_cast<double>(covered) / (samples * samples)));
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
