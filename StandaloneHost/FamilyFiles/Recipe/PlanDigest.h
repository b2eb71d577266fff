#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <string>
#include <vector>

namespace familyfiles {

/// SHA-256, as hexadecimal text, of all that a solid and its pictures follow from. Plans of one digest have the same
/// pictures and need to be built only once; the names of steps do not count.
std::string PlanDigest(const ShapePlan& plan, const std::vector<ConnectorMark>& connectors);

} // namespace familyfiles
