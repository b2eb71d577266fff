#pragma once

#include <TopoDS_Shape.hxx>
#include <cstddef>

namespace familyfiles {

/// A shape that has passed all checks, and its volume, which they need.
struct CheckedShape
{
    TopoDS_Shape shape; ///< a solid, or a compound of solids alone
    double volume = 0;  ///< mm³
};

/// Whether every solid is closed, every face belongs to one, and the kernel's own check finds nothing.
bool IsSound(const TopoDS_Shape& shape);

/// How many separate solids a shape has.
std::size_t CountSolids(const TopoDS_Shape& shape);

/// Holds a built shape to what a component must be. Throws GeometryFailure: geometry.empty, .solid-count, .invalid,
/// .volume; or Standard_Failure.
/// @param solidCount how many separate solids there must be
CheckedShape CheckSolid(const TopoDS_Shape& shape, std::size_t solidCount);

} // namespace familyfiles
