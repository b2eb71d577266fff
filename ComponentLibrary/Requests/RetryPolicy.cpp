#include "Requests/RetryPolicy.h"

#include <algorithm>
#include <cmath>

namespace componentlibrary {

int RetryPolicy::DelayBefore(int next, double dice) const
{
    const double base = firstDelay * std::pow(growth, std::max(0, next - 2));
    const double shifted = base * (1.0 + jitter * (2.0 * std::clamp(dice, 0.0, 1.0) - 1.0));
    return static_cast<int>(std::min(shifted, static_cast<double>(longestPromise)));
}

} // namespace componentlibrary
