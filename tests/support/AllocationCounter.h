#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace testsupport {

/**
 * Counts what this thread allocates by operator new from its construction on.
 *
 * Needs the object library TestAllocationFailure in the program. Counters may be nested.
 */
class AllocationCounter
{
public:
    AllocationCounter();

    /// How many allocations there were.
    std::size_t Count() const;
    /// How many bytes were asked for; what was given back meanwhile is not taken off.
    std::size_t Bytes() const;
    /// The sizes in order; only the last ones when there are thousands.
    std::vector<std::size_t> Sizes() const;

private:
    std::size_t m_countBefore;
    std::size_t m_bytesBefore;
};

/// The size of the block that std::make_shared<T>() asks for: the record and its reference counts.
template <typename T>
std::size_t SizeOfMakeShared()
{
    const AllocationCounter counter;
    const std::shared_ptr<T> made = std::make_shared<T>();
    return counter.Sizes().front();
}

} // namespace testsupport
