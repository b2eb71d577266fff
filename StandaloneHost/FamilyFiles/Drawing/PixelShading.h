#pragma once

#include "FamilyFiles/Drawing/PixelBuffers.h"
#include "FamilyFiles/Recipe/Materials.h"

#include <array>
#include <vector>

namespace familyfiles {

/// Colours of samples: light on the materials, darker along edges and where surfaces come near each other.
class PixelShading
{
public:
    /// Both must outlive the object.
    /// @param materials by the samples' material
    /// @param lineWidth of edges, in samples
    PixelShading(const PixelBuffers& buffers, const std::vector<MaterialLook>& materials, int lineWidth);

    /// Red, green and blue of a covered sample, from 0 to 1.
    std::array<double, 3> ColourAt(int column, int row) const;

    /// How much of the light from around is kept off a covered sample by nearer surfaces beside it, from 0 to 1.
    /// Changes slowly from sample to sample: once a pixel is enough.
    double NearnessAt(int column, int row) const;

private:
    std::array<double, 3> Lit(const PixelSample& sample) const;
    double EdgeAt(int column, int row) const;
    const PixelSample* Neighbour(int column, int row) const;

    const PixelBuffers& m_buffers;
    const std::vector<MaterialLook>& m_materials;
    int m_lineWidth;
};

} // namespace familyfiles
