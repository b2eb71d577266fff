#pragma once

namespace familyfiles {

/// From where a drawing is seen: from above, from the front (against +Y), from the right (against -X).
enum class DrawingView
{
    Plan,
    Elevation,
    Profile
};

} // namespace familyfiles
