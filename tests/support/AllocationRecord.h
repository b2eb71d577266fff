#pragma once

#include <cstddef>

namespace testsupport {

/**
 * What the replaced operator new keeps about the current thread; the guards beside it are the readable side.
 *
 * Plain data, because it is used while memory is being allocated.
 */
struct AllocationRecord
{
    static constexpr std::size_t SizesKept = 4096;

    std::size_t count = 0;
    std::size_t bytes = 0;
    /// The sizes of the last allocations; the n-th stands at n % SizesKept.
    std::size_t sizes[SizesKept] = {};

    bool failureArmed = false;
    bool failureAnySize = false;
    std::size_t failureSize = 0;
    /// How many matching allocations are still let through.
    std::size_t failureSkips = 0;
    bool failureHappened = false;

    /// The current thread's record.
    static AllocationRecord& OfThisThread();

    /// Notes one allocation; false when it has to fail.
    bool Admit(std::size_t size);
};

} // namespace testsupport
