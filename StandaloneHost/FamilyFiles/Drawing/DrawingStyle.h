#pragma once

#include "FamilyFiles/Drawing/Drawing.h"

#include <array>
#include <vector>

namespace familyfiles {

/// How lines of a style look. Colours are of middle lightness: they stand out from white as well as from a dark window.
struct StyleLook
{
    const char* name;             ///< in documents
    const char* colour;           ///< "#rrggbb"
    double width;                 ///< part of the picture's side
    std::array<double, 4> dashes; ///< line, gap, line, gap in widths; the first 0: unbroken
};

/// The look of a style.
const StyleLook& LookOf(LineStyle style);

/// All styles in the order in which they are painted.
constexpr std::array<LineStyle, 5> kLineStyles{
    LineStyle::Hidden, LineStyle::Centre, LineStyle::Visible, LineStyle::Outline, LineStyle::Connector};

/// The square that is shown: the component and all lines with a margin, around their middle.
struct DrawingSquare
{
    Point2 low;
    double side = 1; ///< mm
};

/// The square of a drawing.
DrawingSquare SquareOf(const Drawing& drawing);

} // namespace familyfiles
