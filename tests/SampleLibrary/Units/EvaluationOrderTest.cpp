#include "Products/EvaluationOrder.h"

#include "Reading/SourceError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using samplelibrary::Assignment;
using samplelibrary::InEvaluationOrder;

std::vector<std::string> Targets(const std::vector<Assignment>& assignments)
{
    std::vector<std::string> targets;
    for (const Assignment& assignment : InEvaluationOrder(assignments, "here")) {
        targets.push_back(assignment.Target);
    }
    return targets;
}

TEST(EvaluationOrder, PutsWhatIsNeededFirst)
{
    EXPECT_THAT(Targets({{"P", "Q*H/E"}, {"E", "min(80,_e)"}, {"H", "5"}, {"_e", "H*2"}}),
        testing::ElementsAre("H", "_e", "E", "P"));
}

TEST(EvaluationOrder, KeepsTheGivenOrderOtherwise)
{
    EXPECT_THAT(Targets({{"B", "1"}, {"A", "2"}, {"C", "x"}}), testing::ElementsAre("B", "A", "C"));
}

TEST(EvaluationOrder, SeesPlacesInTexts)
{
    EXPECT_THAT(Targets({{"Range", "0...{Max} °C"}, {"Max", "80"}}), testing::ElementsAre("Max", "Range"));
}

TEST(EvaluationOrder, TakesNoPartOfAWordForAName)
{
    EXPECT_THAT(Targets({{"X", "FlowMax*2"}, {"Flow", "1"}}), testing::ElementsAre("X", "Flow"));
}

TEST(EvaluationOrder, AllowsATargetThatUsesTheTablesValue)
{
    EXPECT_THAT(Targets({{"Flow", "Flow/2"}}), testing::ElementsAre("Flow"));
}

TEST(EvaluationOrder, RefusesARing)
{
    EXPECT_THROW(Targets({{"A", "B+1"}, {"B", "C"}, {"C", "A"}}), samplelibrary::SourceError);
}

} // namespace
