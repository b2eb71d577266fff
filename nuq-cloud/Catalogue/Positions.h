#pragma once

#include "Catalogue/PositionRange.h"

#include <cstdint>
#include <vector>

namespace nuqcloud {

/// Ascending positions of components, as a search or a project's library has them.
using Positions = std::vector<std::uint32_t>;

/// How many of them lie in the range.
std::int64_t CountIn(const Positions& positions, const PositionRange& range);

/// Those of the range from the given one on, at most `limit`.
Positions SliceIn(const Positions& positions, const PositionRange& range, std::int64_t offset, std::int64_t limit);

/// Those that are in both.
Positions Intersection(const Positions& left, const Positions& right);

} // namespace nuqcloud
