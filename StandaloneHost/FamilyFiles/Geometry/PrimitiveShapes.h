#pragma once

#include "FamilyFiles/Recipe/ShapePlan.h"

#include <TopoDS_Shape.hxx>

namespace familyfiles {

/// The kernel's shape for a step that makes one. Throws what the kernel throws (Standard_Failure) when it cannot.
TopoDS_Shape MakeShape(const BlockShape& block);
TopoDS_Shape MakeShape(const CylinderShape& cylinder);
TopoDS_Shape MakeShape(const ConeShape& cone);
TopoDS_Shape MakeShape(const SphereShape& sphere);
TopoDS_Shape MakeShape(const DomeShape& dome);
TopoDS_Shape MakeShape(const TorusShape& torus);
TopoDS_Shape MakeShape(const PrismShape& prism);
TopoDS_Shape MakeShape(const RevolvedShape& revolved);

} // namespace familyfiles
