#include "Program/NearestName.h"

#include <algorithm>
#include <numeric>

namespace nuqcloud {
namespace {

constexpr std::size_t kNearEnough = 2;

/// Letters to insert, drop or change, row by row over the letters of `left`.
std::size_t EditDistance(const std::string& left, const std::string& right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (const char letter : left) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t change = diagonal + (letter == right[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({change, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string NearestName(const std::string& name, const std::vector<std::string>& candidates)
{
    std::string nearest;
    std::size_t distance = kNearEnough + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t here = EditDistance(name, candidate);
        if (here < distance) {
            distance = here;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace nuqcloud
