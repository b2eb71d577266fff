#pragma once

#include "FamilyFiles/Drawing/Drawing.h"

#include <QImage>

namespace familyfiles {

/// The drawing as a picture with transparent background. Needs no display; may be called on any thread.
QImage DrawingPicture(const Drawing& drawing, int pixels);

} // namespace familyfiles
