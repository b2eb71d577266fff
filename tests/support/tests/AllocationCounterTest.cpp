#include "support/AllocationCounter.h"

#include "support/AllocationRecord.h"

#include <gtest/gtest.h>
#include <new>

using testsupport::AllocationCounter;

namespace {

/// Shows the memory to the world in between, or the compiler would leave both calls out.
void AllocateAndFree(std::size_t size)
{
    void* volatile memory = ::operator new(size);
    ::operator delete(memory);
}

} // namespace

TEST(AnAllocationCounter, CountsFromItsConstructionOn)
{
    AllocateAndFree(10);
    const AllocationCounter counter;
    EXPECT_EQ(counter.Count(), 0U);
    EXPECT_EQ(counter.Bytes(), 0U);
    AllocateAndFree(100);
    AllocateAndFree(20);
    EXPECT_EQ(counter.Count(), 2U);
    EXPECT_EQ(counter.Bytes(), 120U);
    const std::vector<std::size_t> sizes = counter.Sizes();
    EXPECT_EQ(sizes, (std::vector<std::size_t>{100, 20}));
}

TEST(AnAllocationCounter, MayBeNested)
{
    const AllocationCounter outer;
    AllocateAndFree(1);
    const AllocationCounter inner;
    AllocateAndFree(2);
    EXPECT_EQ(inner.Count(), 1U);
    EXPECT_EQ(outer.Count(), 2U);
}

TEST(AnAllocationCounter, KeepsTheLastSizesOfMany)
{
    const AllocationCounter counter;
    for (std::size_t size = 1; size <= testsupport::AllocationRecord::SizesKept + 10; ++size) {
        AllocateAndFree(size);
    }
    const std::vector<std::size_t> sizes = counter.Sizes();
    EXPECT_EQ(sizes.size(), testsupport::AllocationRecord::SizesKept - 1);
    EXPECT_EQ(sizes.back(), testsupport::AllocationRecord::SizesKept + 10);
    EXPECT_EQ(sizes.front(), 12U);
}
