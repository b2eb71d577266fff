#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

namespace familyfiles {

/// What a step has made: one shape, or several side by side (the copies of a pattern), which the next boolean operation
/// takes one by one.
using ShapeBody = std::vector<TopoDS_Shape>;

} // namespace familyfiles
