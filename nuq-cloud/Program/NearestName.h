#pragma once

#include <string>
#include <vector>

namespace nuqcloud {

/// The candidate that a mistyped name most likely means: at most two letters apart. Empty when none is that near.
std::string NearestName(const std::string& name, const std::vector<std::string>& candidates);

} // namespace nuqcloud
