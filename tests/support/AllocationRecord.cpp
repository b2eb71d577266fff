#include "support/AllocationRecord.h"

namespace testsupport {

AllocationRecord& AllocationRecord::OfThisThread()
{
    thread_local AllocationRecord record;
    return record;
}

bool AllocationRecord::Admit(std::size_t size)
{
    sizes[count % SizesKept] = size;
    ++count;
    bytes += size;
    const bool matches = failureArmed && (failureAnySize || size == failureSize);
    if (!matches) {
        return true;
    }
    if (failureSkips > 0) {
        --failureSkips;
        return true;
    }
    failureArmed = false;
    failureHappened = true;
    return false;
}

} // namespace testsupport
