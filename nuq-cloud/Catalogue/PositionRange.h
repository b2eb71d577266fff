#pragma once

#include <cstdint>

namespace nuqcloud {

/// Components first, first + 1, ... first + count - 1 in the catalogue's own order.
struct PositionRange
{
    std::int64_t first = 0;
    std::int64_t count = 0;

    std::int64_t End() const { return first + count; }
};

} // namespace nuqcloud
