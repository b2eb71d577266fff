#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"

#include <TopoDS_Edge.hxx>
#include <TopoDS_Shape.hxx>
#include <vector>

namespace familyfiles {

/// The sharp edges of @p shape that one of @p filters chooses; all sharp ones without a filter. Each edge stands once,
/// in the order of the shape.
std::vector<TopoDS_Edge> ChooseEdges(const TopoDS_Shape& shape, const std::vector<EdgeFilter>& filters);

} // namespace familyfiles
