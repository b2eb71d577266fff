#include "AllocationMeter.h"

#include <atomic>
#include <dlfcn.h>
#include <malloc.h>

namespace {

// Every malloc of the process passes here, Qt's own included; the benchmarks are single-threaded.
std::atomic<long long> g_allocations{0};
std::atomic<long long> g_bytes{0};
std::atomic<long long> g_peak{0};

template <typename Function>
Function Next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void CountIn(void* block)
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    const long long bytes =
        g_bytes.fetch_add(static_cast<long long>(malloc_usable_size(block)), std::memory_order_relaxed) +
        static_cast<long long>(malloc_usable_size(block));
    if (bytes > g_peak.load(std::memory_order_relaxed)) {
        g_peak.store(bytes, std::memory_order_relaxed);
    }
}

void CountOut(void* block)
{
    g_bytes.fetch_sub(static_cast<long long>(malloc_usable_size(block)), std::memory_order_relaxed);
}

} // namespace

extern "C" void* malloc(size_t size)
{
    static auto* const next = Next<void* (*)(size_t)>("malloc");
    void* block = next(size);
    CountIn(block);
    return block;
}

extern "C" void* realloc(void* old, size_t size)
{
    static auto* const next = Next<void* (*)(void*, size_t)>("realloc");
    CountOut(old);
    void* block = next(old, size);
    CountIn(block);
    return block;
}

extern "C" void free(void* block)
{
    static auto* const next = Next<void (*)(void*)>("free");
    CountOut(block);
    next(block);
}

namespace bench {

AllocationMeter::AllocationMeter() : m_startAllocations(g_allocations), m_startBytes(g_bytes)
{
    g_peak = m_startBytes;
}

long long AllocationMeter::Allocations() const
{
    return g_allocations - m_startAllocations;
}

long long AllocationMeter::PeakBytes() const
{
    return g_peak - m_startBytes;
}

} // namespace bench
