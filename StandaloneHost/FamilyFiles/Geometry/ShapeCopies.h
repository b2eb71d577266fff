#pragma once

#include "FamilyFiles/Geometry/FaceMaterials.h"
#include "FamilyFiles/Geometry/ShapeBody.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

namespace familyfiles {

/// The copies of @p body that @p step asks for. Copies that are only moved or turned share their geometry.
/// Throws Standard_Failure.
ShapeBody MakeCopies(const CopyStep& step, const ShapeBody& body, FaceMaterials& materials);

} // namespace familyfiles
