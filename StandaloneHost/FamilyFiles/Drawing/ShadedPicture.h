#pragma once

#include "FamilyFiles/Drawing/TriangleMesh.h"

#include <QImage>

namespace familyfiles {

/// A shaded picture of a body on a transparent square, seen in parallel from the direction of @p camera.
///
/// Made without a graphics card: the same arguments give the same pixels on every machine. Rims are light and inner
/// edges dark, so that the body stands out from white as well as from a dark window. May be called on any thread.
/// @param camera from the body towards the viewer; not zero
QImage ShadedPicture(const TriangleMesh& mesh, const Point3& camera, int pixels);

} // namespace familyfiles
