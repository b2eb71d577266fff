#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"

#include <TopoDS_Shape.hxx>

namespace familyfiles {

/// The kernel's shape for a profile moved along a path. Throws what the kernel throws (Standard_Failure).
TopoDS_Shape MakeShape(const SweptShape& swept);

/// The kernel's shape for a skin over sections; holes go through from end to end. Throws Standard_Failure.
TopoDS_Shape MakeShape(const LoftShape& loft);

} // namespace familyfiles
