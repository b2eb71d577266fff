#include "support/AllocationFailure.h"

#include "support/AllocationCounter.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <thread>
#include <vector>

using testsupport::AllocationFailure;
using testsupport::SizeOfMakeShared;

namespace {

struct Small
{
    std::int64_t a = 1;
};

struct Large
{
    std::int64_t numbers[100] = {};
};

struct alignas(64) Aligned
{
    std::int64_t a = 1;
};

/// Makes an object that the compiler cannot leave out.
template <typename T>
std::unique_ptr<T> Make()
{
    T* volatile object = new T;
    return std::unique_ptr<T>(object);
}

} // namespace

TEST(AnAllocationFailure, StrikesTheAllocationOfItsSize)
{
    const AllocationFailure failure(sizeof(Large));
    EXPECT_NO_THROW(Make<Small>());
    EXPECT_FALSE(failure.Happened());
    EXPECT_THROW(Make<Large>(), std::bad_alloc);
    EXPECT_TRUE(failure.Happened());
}

TEST(AnAllocationFailure, StrikesOnce)
{
    const AllocationFailure failure(sizeof(Large));
    EXPECT_THROW(Make<Large>(), std::bad_alloc);
    EXPECT_NO_THROW(Make<Large>());
}

TEST(AnAllocationFailure, StrikesTheNthOfItsSize)
{
    const AllocationFailure failure(sizeof(Large), 3);
    EXPECT_NO_THROW(Make<Large>());
    EXPECT_NO_THROW(Make<Small>());
    EXPECT_NO_THROW(Make<Large>());
    EXPECT_FALSE(failure.Happened());
    EXPECT_THROW(Make<Large>(), std::bad_alloc);
}

TEST(AnAllocationFailure, OfAnySizeStrikesTheNthOfAll)
{
    const AllocationFailure failure = AllocationFailure::OfAnySize(2);
    const auto first = Make<Large>();
    EXPECT_THROW(Make<Small>(), std::bad_alloc);
    EXPECT_TRUE(failure.Happened());
}

TEST(AnAllocationFailure, StrikesSharedRecords)
{
    const std::size_t size = SizeOfMakeShared<Large>();
    EXPECT_GT(size, sizeof(Large));
    const AllocationFailure failure(size);
    EXPECT_THROW(std::make_shared<Large>(), std::bad_alloc);
}

TEST(AnAllocationFailure, StrikesArraysAndContainers)
{
    const AllocationFailure failure(80);
    std::vector<std::int64_t> numbers;
    EXPECT_THROW(numbers.reserve(10), std::bad_alloc);
    EXPECT_TRUE(failure.Happened());
}

TEST(AnAllocationFailure, StrikesAlignedObjects)
{
    const AllocationFailure failure(sizeof(Aligned));
    EXPECT_THROW(Make<Aligned>(), std::bad_alloc);
    const auto aligned = Make<Aligned>();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(aligned.get()) % alignof(Aligned), 0U);
}

TEST(AnAllocationFailure, GivesNullWhereNothingMayBeThrown)
{
    const AllocationFailure failure(sizeof(Large));
    Large* volatile large = new (std::nothrow) Large;
    EXPECT_EQ(large, nullptr);
    delete large;
    EXPECT_TRUE(failure.Happened());
}

TEST(AnAllocationFailure, EndsWithItsScope)
{
    {
        const AllocationFailure failure(sizeof(Large));
    }
    EXPECT_NO_THROW(Make<Large>());
}

TEST(AnAllocationFailure, LeavesOtherThreadsAlone)
{
    const AllocationFailure failure(sizeof(Large));
    bool survived = false;
    std::thread([&survived] { survived = Make<Large>() != nullptr; }).join();
    EXPECT_TRUE(survived);
    EXPECT_FALSE(failure.Happened());
    EXPECT_THROW(Make<Large>(), std::bad_alloc);
}
