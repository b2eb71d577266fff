#pragma once

#include <cstdint>

namespace tarnnuq {

/// The building-services trade that an application is made for. The numbers go over the wire.
enum Major : std::int32_t
{
    /// No trade in particular: all of them.
    None = -1,
    /// Water, drainage, gas, fire fighting.
    Plumbing = 0,
    /// Heating, ventilation, cooling.
    Hvac = 1,
    /// Power, lighting, communication, controls.
    Electrical = 2,
};

} // namespace tarnnuq
