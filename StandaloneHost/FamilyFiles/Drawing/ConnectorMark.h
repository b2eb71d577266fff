#pragma once

#include "FamilyFiles/Recipe/Point3.h"

#include <cstdint>

namespace familyfiles {

/// What connector marks look like.
enum class ConnectorShape : std::uint8_t
{
    Round,
    Rectangular,
    Oval,
    Cable
};

/// Where others are connected, with all numbers known; mm.
struct ConnectorMark
{
    Point3 position;
    Point3 direction; ///< away from the component, of unit length
    ConnectorShape shape = ConnectorShape::Round;
    double width = 0;  ///< or the diameter
    double height = 0; ///< as the width where it is round
};

} // namespace familyfiles
