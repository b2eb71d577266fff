#include "Catalogue/Positions.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace nuqcloud {
namespace {

using Iterator = Positions::const_iterator;

std::pair<Iterator, Iterator> Bounds(const Positions& positions, const PositionRange& range)
{
    const auto first = std::lower_bound(positions.begin(), positions.end(), range.first);
    return {first, std::lower_bound(first, positions.end(), range.End())};
}

} // namespace

std::int64_t CountIn(const Positions& positions, const PositionRange& range)
{
    const auto bounds = Bounds(positions, range);
    return std::distance(bounds.first, bounds.second);
}

Positions SliceIn(const Positions& positions, const PositionRange& range, std::int64_t offset, std::int64_t limit)
{
    const auto bounds = Bounds(positions, range);
    const std::int64_t count = std::distance(bounds.first, bounds.second);
    const std::int64_t begin = std::min(offset, count);
    const std::int64_t end = std::min(begin + limit, count);
    return Positions(bounds.first + begin, bounds.first + end);
}

Positions Intersection(const Positions& left, const Positions& right)
{
    Positions both;
    std::set_intersection(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(both));
    return both;
}

} // namespace nuqcloud
