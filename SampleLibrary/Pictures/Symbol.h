#pragma once

#include <string>
#include <vector>

namespace samplelibrary {

/// How a shape of a symbol is drawn.
enum class ShapeStyle
{
    Line,   ///< outline
    Thin,   ///< thinner outline, for detail
    Dashed, ///< dashed thin outline, for what is hidden or an axis
    Soft,   ///< outline over a light filling
    Solid   ///< filling alone
};

/// One drawing step: 'M' and 'L' with a point, 'C' with three points, 'Z' without one, 'O' with a centre and a radius,
/// 'R' with a corner, a width and a height.
struct PathStep
{
    char Command = 'M';
    std::vector<double> Numbers;
};

/// A shape within a symbol.
struct SymbolShape
{
    ShapeStyle Style = ShapeStyle::Line;
    std::vector<PathStep> Steps;
};

/// A drawing in a square of 100 by 100 units, y downwards.
using Symbol = std::vector<SymbolShape>;

} // namespace samplelibrary
