#pragma once

#include <cstddef>
#include <vector>

namespace samplelibrary {

/// Shares @p total out in proportion to @p weights, whole numbers that add up exactly to it (largest remainders, the
/// earlier one on a tie). Where the total suffices every share is at least 1. The weights must not all be 0.
std::vector<std::size_t> Shares(std::size_t total, const std::vector<std::size_t>& weights);

} // namespace samplelibrary
