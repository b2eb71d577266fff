#pragma once

#include <cstdint>

namespace tarn {

/// The view in which a legend is drawn, by the numbers of tarnnuq::ILegend::LegendType.
enum TarnLegendType : std::int32_t
{
    Unknown = 0,
    Plan = 1,
    Elevation = 2,
    Profile = 3,
};

} // namespace tarn
