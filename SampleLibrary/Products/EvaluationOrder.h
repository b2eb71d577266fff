#pragma once

#include "Reading/ProductLine.h"

#include <string>
#include <vector>

namespace samplelibrary {

/// The assignments in an order in which each stands behind those whose targets it uses; otherwise the given order is
/// kept. A target that uses its own name means the value of the size table. Throws SourceError beginning with @p where
/// when assignments need each other in a ring.
std::vector<Assignment> InEvaluationOrder(const std::vector<Assignment>& assignments, const std::string& where);

} // namespace samplelibrary
