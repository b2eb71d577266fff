#pragma once

#include <TopoDS_Shape.hxx>
#include <string>
#include <vector>

namespace bench {

/// A component as a recipe and as the library calls that make the same solid by hand.
struct BareShape
{
    std::string name;
    std::string recipe;
    TopoDS_Shape (*make)();
};

/// Components of different kinds, from a plain duct to a valve with bolt holes and a handwheel.
const std::vector<BareShape>& BareShapes();

} // namespace bench
