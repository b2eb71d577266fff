#include "FamilyFiles/Formulas/DependencyOrder.h"

#include <algorithm>

namespace familyfiles {

namespace {

/// From a thing that was left over, along needs that were left over, until one comes again: each has such a need.
std::vector<std::size_t> RingAmong(
    const std::vector<std::vector<std::size_t>>& needs, const std::vector<std::size_t>& openNeeds)
{
    const auto isLeft = [&](std::size_t thing) { return openNeeds[thing] > 0; };
    std::vector<bool> wasSeen(needs.size(), false);
    std::vector<std::size_t> path;
    const auto first = std::find_if(openNeeds.begin(), openNeeds.end(), [](std::size_t open) { return open > 0; });
    auto thing = static_cast<std::size_t>(first - openNeeds.begin());
    while (!wasSeen[thing]) {
        wasSeen[thing] = true;
        path.push_back(thing);
        thing = *std::find_if(needs[thing].begin(), needs[thing].end(), isLeft);
    }
    return {std::find(path.begin(), path.end(), thing), path.end()};
}

} // namespace

DependencyOrder DependencyOrder::Of(const std::vector<std::vector<std::size_t>>& needs)
{
    std::vector<std::size_t> openNeeds(needs.size());
    std::vector<std::vector<std::size_t>> users(needs.size());
    DependencyOrder result;
    result.order.reserve(needs.size());
    for (std::size_t thing = 0; thing < needs.size(); ++thing) {
        openNeeds[thing] = needs[thing].size();
        for (const std::size_t needed : needs[thing]) {
            users[needed].push_back(thing);
        }
        if (needs[thing].empty()) {
            result.order.push_back(thing);
        }
    }
    for (std::size_t next = 0; next < result.order.size(); ++next) {
        for (const std::size_t user : users[result.order[next]]) {
            if (--openNeeds[user] == 0) {
                result.order.push_back(user);
            }
        }
    }
    if (result.order.size() < needs.size()) {
        result.ring = RingAmong(needs, openNeeds);
    }
    return result;
}

} // namespace familyfiles
