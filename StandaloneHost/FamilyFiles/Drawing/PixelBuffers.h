#pragma once

#include "FamilyFiles/Recipe/Point3.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace familyfiles {

/// What is known of a sample of a picture: how near the surface is, where it looks, what it is made of.
struct PixelSample
{
    float depth = 0;   ///< towards the viewer, in samples; only valid where covered
    float normalX = 0; ///< in the viewer's system: right, up, towards the viewer
    float normalY = 0;
    float normalZ = 0;
    std::uint16_t material = 0;
    bool isCovered = false;
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
