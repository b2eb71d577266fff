#pragma once

namespace bench {

/// Counts the allocations of this process and the peak of allocated bytes from its construction on.
///
/// Google Benchmark's own memory manager is not used: with repetitions, version 1.7.1 reports figures of memory that
/// it has released.
class AllocationMeter
{
public:
    AllocationMeter();

    long long Allocations() const;
    long long PeakBytes() const;

private:
    long long m_startAllocations;
    long long m_startBytes;
};

} // namespace bench
