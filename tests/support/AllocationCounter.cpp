#include "support/AllocationCounter.h"

#include "support/AllocationRecord.h"

#include <algorithm>

namespace testsupport {

AllocationCounter::AllocationCounter()
    : m_countBefore(AllocationRecord::OfThisThread().count), m_bytesBefore(AllocationRecord::OfThisThread().bytes)
{
}

std::size_t AllocationCounter::Count() const
{
    return AllocationRecord::OfThisThread().count - m_countBefore;
}

std::size_t AllocationCounter::Bytes() const
{
    return AllocationRecord::OfThisThread().bytes - m_bytesBefore;
}

std::vector<std::size_t> AllocationCounter::Sizes() const
{
    const AllocationRecord& record = AllocationRecord::OfThisThread();
    // The vector's own allocation comes after its range is fixed, and must not overwrite a size that is still to be
    // read.
    const std::size_t end = record.count;
    const std::size_t kept = std::min(end - m_countBefore, AllocationRecord::SizesKept - 1);
    std::vector<std::size_t> sizes;
    sizes.reserve(kept);
    for (std::size_t index = end - kept; index < end; ++index) {
        sizes.push_back(record.sizes[index % AllocationRecord::SizesKept]);
    }
    return sizes;
}

} // namespace testsupport
