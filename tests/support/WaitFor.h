#pragma once

#include <chrono>
#include <functional>

namespace testsupport {

/// How long a test waits for what it expects.
constexpr std::chrono::milliseconds WaitLimit{5000};

/**
 * Runs the thread's event loop until a condition holds.
 *
 * @return true as soon as the condition holds, false when the limit is over first.
 */
bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = WaitLimit);

} // namespace testsupport
