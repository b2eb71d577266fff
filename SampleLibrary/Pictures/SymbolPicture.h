#pragma once

#include "Pictures/Symbol.h"

#include <QColor>
#include <QImage>
#include <string>

namespace samplelibrary {

/// Draws @p symbol in @p colour on a transparent square of @p pixels by @p pixels. @p strokeWidth is in the symbol's
/// units. Needs no display; the same arguments give the same pixels. May be called on several threads.
QImage DrawSymbol(const Symbol& symbol, const QColor& colour, int pixels, double strokeWidth);

/// The same drawing as an SVG document.
std::string SymbolSvg(const Symbol& symbol, const QColor& colour, double strokeWidth);

} // namespace samplelibrary
