// Hosts that throw, and memory that runs out: each is the operation's failure, none reaches the caller.
#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"
#include "support/AllocationFailure.h"

#include <stdexcept>

using testsupport::AllocationFailure;

namespace {

class FamilyFileFaultTest : public testsupport::FamilyFileFixture
{
protected:
    FamilyFileFaultTest()
    {
        family.Add("b", 3);
        family.Add("i", 4);
        family.Add("d", 5);
        family.Add("t", 6);
        family.AddOutput("B", 3);
        family.AddOutput("I", 4);
        family.AddOutput("D", 5).number = 2.5;
        family.AddOutput("T", 6);
    }

    /// Entries for every parameter, with texts too long to be kept without an allocation.
    static std::shared_ptr<tarnnuq::ISpecification> Whole()
    {
        const std::wstring filler(40, L' ');
        return Specification({{L"1", L"b", filler}, {L"2", L"i", filler}, {L"3", L"d", filler}, {L"4", L"t", filler},
            {L"5", L"B", filler}, {L"6", L"I", filler}, {L"7", L"D", filler}, {L"8", L"T", filler}});
    }

    /// The calls of an operation that meets no fault.
    template <typename Operation>
    Calls CallsOf(tarnnuq::FamilyFileService& service, Operation operation)
    {
        operation(service);
        const Calls calls = family.calls.calls;
        family.calls.calls.clear();
        return calls;
    }

    /// Runs the operation once for each call that it makes, with a host that throws there.
    template <typename Operation>
    void ExpectFailureAtEachCall(Operation operation)
    {
        const auto service = Open();
        for (const std::string& call : CallsOf(*service, operation)) {
            family.calls.onCall = [&call](const std::string& made) {
                if (made == call) {
                    throw std::runtime_error(call);
                }
            };
            EXPECT_NO_THROW(EXPECT_FALSE(operation(*service)) << call) << call;
            EXPECT_EQ(family.calls.calls.back(), call);
            family.calls.onCall = [&call](const std::string& made) {
                if (made == call) {
                    throw 5;
                }
            };
            EXPECT_NO_THROW(EXPECT_FALSE(operation(*service)) << call) << call;
            family.calls.onCall = nullptr;
            EXPECT_TRUE(operation(*service)) << "after " << call;
            EXPECT_EQ(family.geometries, 0);
        }
    }

    struct Outcome
    {
        bool result = false;
        bool failed = false; ///< Whether an allocation failed.
    };

    /// Runs an operation while its first allocation fails, then its second, and so on until none does.
    /// @return how many there were
    template <typename Operation>
    static std::size_t FailEachAllocation(Operation operation)
    {
        for (std::size_t nth = 1;; ++nth) {
            SCOPED_TRACE(nth);
            Outcome outcome{false, true};
            EXPECT_NO_THROW(outcome = operation(nth));
            EXPECT_NE(outcome.result, outcome.failed);
            if (!outcome.failed) {
                return nth - 1;
            }
        }
    }

    bool changed = false;
};

} // namespace

TEST_F(FamilyFileFaultTest, AHostThatThrowsAnywhereFailsTheCheck)
{
    ExpectFailureAtEachCall([](auto& service) { return service.TryUpdateGeometry(Whole()); });
}

TEST_F(FamilyFileFaultTest, AHostThatThrowsAnywhereFailsTheUpdate)
{
    ExpectFailureAtEachCall([this](auto& service) { return service.UpdateDrivenParameters(Whole(), changed); });
}

TEST_F(FamilyFileFaultTest, WhatWasWrittenBeforeTheHostThrewIsTold)
{
    const auto service = Open();
    const auto specification = Whole();
    family.calls.onCall = [](const std::string& call) {
        if (call == "T.GetText") {
            throw std::runtime_error(call);
        }
    };
    EXPECT_FALSE(service->UpdateDrivenParameters(specification, changed));
    EXPECT_TRUE(changed);
    EXPECT_EQ(specification->Parameters[L"7"]->Value, L"2.5");
    EXPECT_EQ(specification->Parameters[L"8"]->Value, std::wstring(40, L' '));
}

TEST_F(FamilyFileFaultTest, WithoutMemoryTheCheckFails)
{
    const auto service = Open();
    const auto specification = Whole();
    const std::size_t failures = FailEachAllocation([&](std::size_t nth) {
        const AllocationFailure failure = AllocationFailure::OfAnySize(nth);
        const bool result = service->TryUpdateGeometry(specification);
        return Outcome{result, failure.Happened()};
    });
    EXPECT_GT(failures, 20U);
    EXPECT_EQ(family.geometries, 0);
}

TEST_F(FamilyFileFaultTest, WithoutMemoryTheUpdateFailsAndLeavesWholeTexts)
{
    const auto service = Open();
    const std::size_t failures = FailEachAllocation([&](std::size_t nth) {
        const auto specification = Whole();
        Outcome outcome;
        {
            const AllocationFailure failure = AllocationFailure::OfAnySize(nth);
            outcome.result = service->UpdateDrivenParameters(specification, changed);
            outcome.failed = failure.Happened();
        }
        EXPECT_EQ(specification->Parameters[L"8"]->Value, outcome.failed ? std::wstring(40, L' ') : L"untouched");
        return outcome;
    });
    EXPECT_GT(failures, 30U);
}

TEST_F(FamilyFileFaultTest, WithoutMemoryThereIsNoService)
{
    const std::wstring original = NewFile(QStringLiteral("pump.rfx")).toStdWString();
    const std::size_t failures = FailEachAllocation([&](std::size_t nth) {
        Outcome outcome;
        {
            const AllocationFailure failure = AllocationFailure::OfAnySize(nth);
            outcome.result = tarnnuq::FamilyFileService::Create(original) != nullptr;
            outcome.failed = failure.Happened();
        }
        EXPECT_EQ(family.openFiles, 0);
        return outcome;
    });
    EXPECT_GT(failures, 3U);
}
