#pragma once

#include <benchmark/benchmark.h>

namespace bench {

/// Counts allocations and the peak of allocated bytes in the extra iteration that Google Benchmark runs for it.
class AllocationMeter : public benchmark::MemoryManager
{
public:
    void Start() override;
    void Stop(Result* result) override;

    /// @return the allocations of this process so far
    static long long Allocations();

private:
    long long m_startAllocations = 0;
    long long m_startBytes = 0;
};

} // namespace bench
