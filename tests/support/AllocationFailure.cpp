#include "support/AllocationFailure.h"

#include "support/AllocationRecord.h"

namespace testsupport {

namespace {

void Arm(std::size_t size, bool anySize, std::size_t nth)
{
    AllocationRecord& record = AllocationRecord::OfThisThread();
    record.failureSize = size;
    record.failureAnySize = anySize;
    record.failureSkips = nth - 1;
    record.failureHappened = false;
    record.failureArmed = true;
}

} // namespace

AllocationFailure::AllocationFailure(std::size_t size, std::size_t nth)
{
    Arm(size, false, nth);
}

AllocationFailure::AllocationFailure(AnySize, std::size_t nth)
{
    Arm(0, true, nth);
}

AllocationFailure AllocationFailure::OfAnySize(std::size_t nth)
{
    return AllocationFailure(AnySize(), nth);
}

AllocationFailure::~AllocationFailure()
{
    AllocationRecord::OfThisThread().failureArmed = false;
}

bool AllocationFailure::Happened() const
{
    return AllocationRecord::OfThisThread().failureHappened;
}

} // namespace testsupport
