// Replaces the program's operator new and delete by versions that count and can be told to fail. They rest on malloc
// and free, so the sanitizers keep watching every block.

#include "support/AllocationRecord.h"

#include <cstdlib>
#include <new>

namespace {

void* Allocate(std::size_t size) noexcept
{
    const bool admitted = testsupport::AllocationRecord::OfThisThread().Admit(size);
    return admitted ? std::malloc(size > 0 ? size : 1) : nullptr;
}

void* AllocateAligned(std::size_t size, std::align_val_t alignment) noexcept
{
    const bool admitted = testsupport::AllocationRecord::OfThisThread().Admit(size);
    const auto boundary = static_cast<std::size_t>(alignment);
    const std::size_t wholeBlocks = (size + boundary - 1) / boundary * boundary;
    return admitted ? std::aligned_alloc(boundary, wholeBlocks > 0 ? wholeBlocks : boundary) : nullptr;
}

void* OrThrow(void* memory)
{
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size)
{
    return OrThrow(Allocate(size));
}

void* operator new[](std::size_t size)
{
    return OrThrow(Allocate(size));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return OrThrow(AllocateAligned(size, alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return OrThrow(AllocateAligned(size, alignment));
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return AllocateAligned(size, alignment);
}

void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return AllocateAligned(size, alignment);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
