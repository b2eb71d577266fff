#include "Catalogue/Shares.h"

#include <algorithm>
#include <numeric>

namespace samplelibrary {

namespace {

/// Gives what rounding down has left over to those with the largest remainders.
void ShareRemainders(
    std::vector<std::size_t>& shares, const std::vector<std::size_t>& weights, std::size_t total, std::size_t sum)
{
    std::vector<std::size_t> byRemainder(weights.size());
    std::iota(byRemainder.begin(), byRemainder.end(), std::size_t{0});
    std::stable_sort(byRemainder.begin(), byRemainder.end(),
        [&](std::size_t one, std::size_t other) { return total * weights[one] % sum > total * weights[other] % sum; });
    const std::size_t left = total - std::accumulate(shares.begin(), shares.end(), std::size_t{0});
    for (std::size_t at = 0; at < left; ++at) {
        ++shares[byRemainder[at]];
    }
}

void FillEmptyShares(std::vector<std::size_t>& shares)
{
    for (std::size_t& share : shares) {
        if (share == 0) {
            --*std::max_element(shares.begin(), shares.end());
            ++share;
        }
    }
}

} // namespace

std::vector<std::size_t> Shares(std::size_t total, const std::vector<std::size_t>& weights)
{
    const std::size_t sum = std::accumulate(weights.begin(), weights.end(), std::size_t{0});
    std::vector<std::size_t> shares(weights.size());
    std::transform(weights.begin(), weights.end(), shares.begin(),
        [total, sum](std::size_t weight) { return total * weight / sum; });
    ShareRemainders(shares, weights, total, sum);
    if (total >= weights.size()) {
        FillEmptyShares(shares);
    }
    return shares;
}

} // namespace samplelibrary
