#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace familyfiles {

/// What is known of a sample of a picture: how near the surface is, where it looks, what it is made of. Small, because
/// a large picture has millions of them.
struct PixelSample
{
    static constexpr std::uint16_t kBackground = 0xFFFF;
    static constexpr float kNormalScale = 32767;

    float depth = -1e30F; ///< towards the viewer, in samples
    /// Of unit length times kNormalScale, in the viewer's system: right, up, towards the viewer.
    std::int16_t normalX = 0;
    std::int16_t normalY = 0;
    std::int16_t normalZ = 0;
    std::uint16_t material = kBackground;

    bool IsCovered() const { return material != kBackground; }
};

/// The samples of a square picture, row by row from the top.
struct PixelBuffers
{
    explicit PixelBuffers(int sideLength)
        : side(sideLength), samples(static_cast<std::size_t>(sideLength) * static_cast<std::size_t>(sideLength))
    {
    }

    PixelSample& At(int column, int row) { return samples[Index(column, row)]; }
    const PixelSample& At(int column, int row) const { return samples[Index(column, row)]; }

    std::size_t Index(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(side) + static_cast<std::size_t>(column);
    }

    int side;
    std::vector<PixelSample> samples;
};

} // namespace familyfiles
