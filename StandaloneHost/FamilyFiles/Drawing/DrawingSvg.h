#pragma once

#include "FamilyFiles/Drawing/Drawing.h"

#include <string>

namespace familyfiles {

/// The drawing as an SVG document: square, transparent, lengths in mm with y downwards. The same drawing gives the same
/// bytes on every machine.
std::string DrawingSvg(const Drawing& drawing);

} // namespace familyfiles
