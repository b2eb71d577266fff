#pragma once

#include "FamilyFiles/Geometry/BuildBudget.h"
#include "FamilyFiles/Geometry/FaceMaterials.h"
#include "FamilyFiles/Geometry/ShapeBody.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

namespace familyfiles {

/// Joins shapes; @p materials follows the faces. Throws GeometryFailure or Standard_Failure.
///
/// All shapes go into one operation: a chain of operations would cut the same faces again and again.
TopoDS_Shape Join(BooleanKind kind, const ShapeBody& arguments, const ShapeBody& tools, FaceMaterials& materials,
    BuildBudget& budget);

/// The body as one shape: shapes that may touch are fused, others put side by side.
TopoDS_Shape AsOneShape(const ShapeBody& body, FaceMaterials& materials, BuildBudget& budget);

} // namespace familyfiles
