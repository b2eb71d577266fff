#pragma once

#include "FamilyFiles/Geometry/BuildBudget.h"
#include "FamilyFiles/Geometry/FaceMaterials.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <TopoDS_Shape.hxx>

namespace familyfiles {

/// @p shape with the chosen edges rounded or bevelled. Edges along which two faces already join smoothly stay as they
/// are. Throws GeometryFailure when no edge is chosen or too many, or Standard_Failure.
TopoDS_Shape TreatEdges(const EdgeStep& step, const TopoDS_Shape& shape, FaceMaterials& materials, BuildBudget& budget);

} // namespace familyfiles
