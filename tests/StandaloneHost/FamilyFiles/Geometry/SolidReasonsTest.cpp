#include "support/BuiltSolid.h"
#include "support/NamedCase.h"

#include <gmock/gmock.h>

namespace familyfiles {
namespace {

using familyfiles::testing::RecipeOf;
using familyfiles::testing::SolidOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testsupport::NamedCase;
using testsupport::RowName;

struct RefusedSolid : NamedCase
{
    std::string recipe;
    std::string code;
    std::string english;
};

class SolidReasons : public ::testing::TestWithParam<RefusedSolid>
{
};

TEST_P(SolidReasons, SayWhyThereIsNone)
{
    const BuildResult result = SolidOf(GetParam().recipe);

    EXPECT_EQ(result.solid, nullptr);
    EXPECT_EQ(result.reason.code, GetParam().code);
    EXPECT_THAT(result.reason.english, HasSubstr(GetParam().english));
    EXPECT_THAT(result.reason.chinese, Not(IsEmpty()));
}

const std::string kApart =
    R"({"op": "box", "size": [10, 10, 10]}, {"op": "box", "size": [10, 10, 10], "at": [50, 0, 0]})";

INSTANTIATE_TEST_SUITE_P(Rows, SolidReasons,
    ::testing::Values(RefusedSolid{{"TwoPiecesWhereOneIsWanted"}, RecipeOf(kApart + R"(, {"op": "fuse"})"),
                          "geometry.solid-count", "2 solids instead of 1"},
        RefusedSolid{{"OnePieceWhereTwoAreWanted"}, R"({"solids": 2, "steps": [{"op": "box", "size": [1, 1, 1]}]})",
            "geometry.solid-count", "1 solids instead of 2"},
        RefusedSolid{{"ACutThatTakesAll"},
            RecipeOf(
                R"({"op": "cut", "from": {"op": "sphere", "radius": 5}, "tools": [{"op": "sphere", "radius": 9}]})"),
            "geometry.empty", "Nothing is left"},
        RefusedSolid{{"ACommonOfWhatIsApart"}, RecipeOf(R"({"op": "common", "of": [{"op": "sphere", "radius": 5},
            {"op": "sphere", "radius": 5, "at": [50, 0, 0]}]})"),
            "geometry.empty", "Nothing is left"},
        RefusedSolid{{"AFilletTooLargeForItsBlock"},
            RecipeOf(R"({"id": "soft", "op": "fillet", "radius": 30, "of": {"op": "box", "size": [20, 20, 20]}})"),
            "geometry.failed", "Step soft: "},
        RefusedSolid{{"AChamferTooLargeForItsBlock"},
            RecipeOf(R"({"op": "chamfer", "distance": 30, "of": {"op": "box", "size": [20, 20, 20]}})"),
            "geometry.failed", "Step 1 (chamfer): "},
        RefusedSolid{{"AFilletOfNoEdge"}, RecipeOf(R"({"op": "fillet", "radius": 1, "edges": {"along": [1, 1, 1]}, "of":
                {"op": "box", "size": [20, 20, 20]}})"),
            "geometry.no-edges", "Step 1 (fillet): No edge is chosen"},
        RefusedSolid{{"AFilletOfTooManyEdges"},
            RecipeOf(R"({"op": "fillet", "radius": 0.1, "of": {"op": "extrude", "length": 9, "profile":
                {"shape": "regular", "sides": 99, "across": 100}}})"),
            "geometry.too-large", "Too many edges"}),
    RowName());

} // namespace
} // namespace familyfiles
