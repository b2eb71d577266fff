#include "Catalogue/Shares.h"

#include <algorithm>
#include <numeric>

namespace samplelibrary {

std::vector<std::size_t> Shares(std::size_t total, const std::vector<std::size_t>& weights)
{
    const std::size_t least = total >= weights.size() ? 1 : 0;
    const std::size_t toShare = total - least * weights.size();
    const std::size_t sum = std::accumulate(weights.begin(), weights.end(), std::size_t{0});
    std::vector<std::size_t> shares(weights.size());
    std::size_t left = toShare;
    for (std::size_t at = 0; at < weights.size(); ++at) {
        shares[at] = toShare * weights[at] / sum;
        left -= shares[at];
    }
    std::vector<std::size_t> byRemainder(weights.size());
    std::iota(byRemainder.begin(), byRemainder.end(), std::size_t{0});
    std::stable_sort(byRemainder.begin(), byRemainder.end(), [&](std::size_t one, std::size_t other) {
        return toShare * weights[one] % sum > toShare * weights[other] % sum;
    });
    for (std::size_t at = 0; at < left; ++at) {
        ++shares[byRemainder[at]];
    }
    std::for_each(shares.begin(), shares.end(), [least](std::size_t& share) { share += least; });
    return shares;
}

} // namespace samplelibrary
