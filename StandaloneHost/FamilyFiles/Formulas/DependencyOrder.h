#pragma once

#include <cstddef>
#include <vector>

namespace familyfiles {

/// The order in which things that need each other can be worked out, in time proportional to their number and needs.
struct DependencyOrder
{
    /// All that can be worked out, each behind what it needs; ones that are free at the same time in their own order.
    std::vector<std::size_t> order;
    /// Members of one ring, each needing the next and the last the first; empty when there is none.
    std::vector<std::size_t> ring;

    /// @param needs for each thing the others that it needs, which may be itself
    static DependencyOrder Of(const std::vector<std::vector<std::size_t>>& needs);
};

} // namespace familyfiles
