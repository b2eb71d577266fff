#pragma once

#include <array>
#include <string>

namespace familyfiles {

/// What came out when the geometry of the first type was built for this file.
struct BuiltRecord
{
    double volume = 0; ///< mm³
    double area = 0;   ///< mm²
    /// Least x, y, z, then greatest x, y, z, mm.
    std::array<double, 6> box{};
    /// Which kernel built it, with its version.
    std::string kernel;
    /// As in ParameterDefinition.
    std::string extra;
};

} // namespace familyfiles
