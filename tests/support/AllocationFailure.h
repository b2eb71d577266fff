#pragma once

#include <cstddef>

namespace testsupport {

/**
 * Makes one allocation of this thread fail while the guard lives: operator new throws std::bad_alloc once.
 *
 * Needs the object library TestAllocationFailure in the program; whatever does not go through operator new (Qt's
 * containers and strings take malloc) is not touched. One guard at a time in a thread.
 *
 *     AllocationFailure outOfMemory(SizeOfMakeShared<ICategory>());
 *     EXPECT_EQ(MakeCategory(), nullptr);
 *     EXPECT_TRUE(outOfMemory.Happened());
 */
class AllocationFailure
{
public:
    /// The nth allocation (counted from 1) of exactly this size fails.
    explicit AllocationFailure(std::size_t size, std::size_t nth = 1);
    /// The nth allocation (counted from 1) of whatever size fails.
    static AllocationFailure OfAnySize(std::size_t nth = 1);
    ~AllocationFailure();
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;

    /// True as soon as the allocation has failed: a test that never got there proves nothing.
    bool Happened() const;

private:
    struct AnySize
    {
    };
    AllocationFailure(AnySize, std::size_t nth);
};

} // namespace testsupport
