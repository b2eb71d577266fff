#include "FamilyFiles/Recipe/PlanDigest.h"
#include "support/RecipeValues.h"

#include <gtest/gtest.h>
#include <set>

namespace familyfiles {
namespace {

using familyfiles::testing::PlanOf;
using familyfiles::testing::RecipeOf;

std::string DigestOf(const std::string& recipe, const std::vector<ConnectorMark>& connectors = {})
{
    const auto outcome = PlanOf(recipe);
    EXPECT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    return outcome.plan ? PlanDigest(*outcome.plan, connectors) : std::string();
}

TEST(PlanDigests, AreTheSameForTheSameNumbersHoweverTheyAreWritten)
{
    const std::string plain = DigestOf(RecipeOf(R"({"op": "box", "size": [10, 20, 30]})"));

    EXPECT_EQ(plain.size(), 64U);
    EXPECT_EQ(plain, DigestOf(RecipeOf(R"({"id": "b", "note": "a block", "op": "box", "size": ["5*2", "20", 30.0]})")));
    EXPECT_EQ(plain, DigestOf(RecipeOf(R"({"op": "box", "size": [10, 20, 30], "at": ["-0", "0*-1", 0]})")));
}

TEST(PlanDigests, DifferForEverythingThatIsSeen)
{
    const std::string box = R"({"op": "box", "size": [10, 20, 30])";
    ConnectorMark mark;
    mark.direction = {1, 0, 0};
    const std::set<std::string> digests{DigestOf(RecipeOf(box + "}")),
        DigestOf(RecipeOf(R"({"op": "box", "size": [10, 20, 30.000001]})")),
        DigestOf(RecipeOf(box + R"(, "at": [0, 0, 1]})")), DigestOf(RecipeOf(box + R"(, "color": "brass"})")),
        DigestOf(RecipeOf(box + R"(, "turn": 90})")), DigestOf(RecipeOf(box + R"(, "corner": true})")),
        DigestOf(R"({"color": "brass", "steps": [)" + box + "}]}"),
        DigestOf(R"({"camera": "front", "steps": [)" + box + "}]}"),
        DigestOf(R"({"solids": 2, "steps": [)" + box + "}]}"),
        DigestOf(R"({"centreLines": [{"axis": "X", "length": 5}], "steps": [)" + box + "}]}"),
        DigestOf(RecipeOf(box + "}"), {mark})};

    EXPECT_EQ(digests.size(), 11U);
}

} // namespace
} // namespace familyfiles
