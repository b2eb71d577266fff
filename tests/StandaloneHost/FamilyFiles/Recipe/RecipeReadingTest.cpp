#include "FamilyFiles/Recipe/Recipe.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"
#include "support/NamedCase.h"
#include "support/RecipeValues.h"

#include <gmock/gmock.h>
#include <string>

namespace familyfiles {
namespace {

using familyfiles::testing::PlanOf;
using familyfiles::testing::PlanOutcome;
using familyfiles::testing::RecipeOf;
using familyfiles::testing::RecipeParameters;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testsupport::NamedCase;
using testsupport::RowName;

const RecipeParameters kParameters{{{"D", 100}, {"L", 300}}, {{"Kind", "A"}}};

struct RefusedRecipe : NamedCase
{
    std::string recipe;
    std::string code;
    std::string subject;
    std::string english;
};

class RecipeReading : public ::testing::TestWithParam<RefusedRecipe>
{
};

TEST_P(RecipeReading, IsRefusedWithAReason)
{
    const PlanOutcome outcome = PlanOf(GetParam().recipe, kParameters);

    EXPECT_FALSE(outcome.plan.has_value());
    EXPECT_EQ(outcome.reason.code, GetParam().code);
    EXPECT_EQ(outcome.reason.subject, GetParam().subject);
    EXPECT_THAT(outcome.reason.english, HasSubstr(GetParam().english));
    EXPECT_THAT(outcome.reason.chinese, Not(IsEmpty()));
}

std::string Nested(int depth)
{
    std::string steps = R"({"op": "box", "size": [1, 1, 1]})";
    for (int i = 0; i < depth; ++i) {
        steps = R"({"op": "transform", "of": )" + steps + "}";
    }
    return RecipeOf(steps);
}

std::string Repeated(const std::string& item, std::size_t count)
{
    std::string list = item;
    for (std::size_t i = 1; i < count; ++i) {
        list += ',' + item;
    }
    return list;
}

std::string ManySteps(std::size_t count)
{
    return RecipeOf(Repeated(R"({"op": "box", "size": [1, 1, 1]})", count) + R"(,{"op": "fuse"})");
}

const std::string kBox = R"({"op": "box", "size": [10, 10, 10]})";

INSTANTIATE_TEST_SUITE_P(Rows, RecipeReading,
    ::testing::Values(RefusedRecipe{{"NoJson"}, "{", "recipe.syntax", "", "no JSON object"},
        RefusedRecipe{{"AList"}, "[]", "recipe.syntax", "", "no JSON object"},
        RefusedRecipe{{"ANumberBeyondAllBounds"}, R"({"steps": [{"op": "box", "size": [1e999, 1, 1]}]})",
            "recipe.syntax", "", "no JSON object"},
        RefusedRecipe{{"NoSteps"}, "{}", "recipe.missing-member", "", "no steps"},
        RefusedRecipe{{"StepsThatAreNoList"}, R"({"steps": {}})", "recipe.syntax", "", "\"steps\" must be a list"},
        RefusedRecipe{{"AnUnknownMember"}, R"({"stepz": [], "steps": []})", "recipe.unknown-member", "", "stepz"},
        RefusedRecipe{{"AStepWithoutOperation"}, RecipeOf("{}"), "recipe.missing-member", "", "\"op\""},
        RefusedRecipe{{"AStepThatIsAText"}, RecipeOf("\"box\""), "recipe.missing-member", "", "\"op\""},
        RefusedRecipe{{"AnUnknownOperation"}, RecipeOf(R"({"op": "bix"})"), "recipe.unknown-operation", "1 (bix)",
            "no operation \"bix\""},
        RefusedRecipe{{"AnUnknownMemberOfAStep"}, RecipeOf(R"({"op": "box", "size": [1, 1, 1], "hight": 3})"),
            "recipe.unknown-member", "1 (box)", "\"hight\""},
        RefusedRecipe{{"AMissingMember"}, RecipeOf(R"({"id": "b", "op": "box"})"), "recipe.missing-member", "b",
            "Step b: \"size\" is missing"},
        RefusedRecipe{{"TwoNumbersInsteadOfThree"}, RecipeOf(R"({"op": "box", "size": [1, 1]})"), "recipe.wrong-shape",
            "1 (box)", "list of 3 numbers"},
        RefusedRecipe{{"AFlagThatIsANumber"}, RecipeOf(R"({"op": "box", "size": [1, 1, 1], "corner": 1})"),
            "recipe.wrong-shape", "1 (box)", "true or false"},
        RefusedRecipe{{"ANumberThatIsAFlag"}, RecipeOf(R"({"op": "sphere", "radius": true})"), "recipe.wrong-shape",
            "1 (sphere)", "number or a formula"},
        RefusedRecipe{{"AnUnknownAxis"}, RecipeOf(R"({"op": "cylinder", "radius": 1, "length": 1, "axis": "W"})"),
            "recipe.wrong-shape", "1 (cylinder)", "\"-X\""},
        RefusedRecipe{{"AnUnknownProfile"}, RecipeOf(R"({"op": "extrude", "length": 1, "profile": {"shape": "blob"}})"),
            "recipe.unknown-shape", "1 (extrude)", "blob"},
        RefusedRecipe{{"AHoleWithHoles"},
            RecipeOf(R"({"op": "extrude", "length": 1, "profile": {"shape": "circle", "radius": 9, "holes": [
                {"shape": "circle", "radius": 2, "holes": []}]}})"),
            "recipe.unknown-member", "1 (extrude)", "\"holes\""},
        RefusedRecipe{{"AnOutlineOnAGrid"},
            RecipeOf(R"({"op": "extrude", "length": 1, "profile": {"shape": "circle", "radius": 9,
                "grid": {"count": [2, 2], "step": [1, 1]}}})"),
            "recipe.unknown-member", "1 (extrude)", "\"grid\""},
        RefusedRecipe{{"AnUnknownStep"}, RecipeOf(R"({"op": "cut", "from": "a", "tools": ["b"]})"),
            "recipe.unknown-step", "1 (cut)", "\"a\""},
        RefusedRecipe{{"AStepThatNamesItself"}, RecipeOf(R"({"id": "a", "op": "transform", "of": "a"})"),
            "recipe.unknown-step", "a", "no earlier step \"a\""},
        RefusedRecipe{{"ALaterStep"}, RecipeOf(R"({"op": "transform", "of": "b"}, {"id": "b", "op": "fuse"})"),
            "recipe.unknown-step", "1 (transform)", "no earlier step \"b\""},
        RefusedRecipe{{"TwoStepsOfOneId"},
            RecipeOf(R"({"id": "a", "op": "sphere", "radius": 1}, {"id": "a", "op": "sphere", "radius": 1})"),
            "recipe.duplicate-id", "a", "taken already"},
        RefusedRecipe{{"AStepThatNothingUses"}, RecipeOf(kBox + "," + kBox), "recipe.unused-step", "1 (box)",
            "Nothing uses step 1 (box)"},
        RefusedRecipe{
            {"AnUnknownResult"}, R"({"steps": [)" + kBox + R"(], "result": "x"})", "recipe.unknown-step", "", "\"x\""},
        RefusedRecipe{{"AnUnknownMaterial"}, RecipeOf(R"({"op": "sphere", "radius": 1, "color": "gold"})"),
            "recipe.unknown-material", "1 (sphere)", "gold"},
        RefusedRecipe{{"AColourWithALetterTooMany"}, RecipeOf(R"({"op": "sphere", "radius": 1, "color": "#12345g"})"),
            "recipe.unknown-material", "1 (sphere)", "#12345g"},
        RefusedRecipe{{"AFormulaThatIsNone"}, RecipeOf(R"({"op": "sphere", "radius": "D/"})"), "formula.syntax",
            "1 (sphere)", ""},
        RefusedRecipe{{"AnUnknownName"}, RecipeOf(R"({"op": "sphere", "radius": "E"})"), "formula.unknown-name",
            "1 (sphere)", "E"},
        RefusedRecipe{{"ANumberThatIsAText"}, RecipeOf(R"({"op": "sphere", "radius": "Kind"})"), "formula.wrong-kind",
            "1 (sphere)", "no number"},
        RefusedRecipe{{"AConditionThatIsANumber"}, RecipeOf(R"({"op": "sphere", "radius": 1, "when": "D"})"),
            "formula.wrong-kind", "1 (sphere)", "does not say yes or no"},
        RefusedRecipe{{"ALengthThatIsAnAngle"}, RecipeOf(R"({"op": "sphere", "radius": "3deg"})"), "formula.wrong-unit",
            "1 (sphere)", "angle instead of length"},
        RefusedRecipe{{"ANameThatIsTaken"}, R"({"let": [["D", "1"]], "steps": [)" + kBox + "]}",
            "recipe.duplicate-name", "D", "taken already"},
        RefusedRecipe{{"ANameThatUsesALaterOne"}, R"({"let": [["a", "b"], ["b", "1"]], "steps": [)" + kBox + "]}",
            "formula.unknown-name", "a", "b"},
        RefusedRecipe{
            {"ANameWithoutFormula"}, R"({"let": [["a"]], "steps": [)" + kBox + "]}", "recipe.syntax", "", "\"let\""},
        RefusedRecipe{{"ARequirementInOneLanguage"}, R"({"require": [{"that": "D > 1", "en": "x"}], "steps": []})",
            "recipe.syntax", "", "\"require\""},
        RefusedRecipe{{"StepsNestedTooDeeply"}, Nested(20), "recipe.too-deep", "16 (transform)", "too deeply"},
        RefusedRecipe{{"TenThousandSteps"}, ManySteps(10000), "recipe.too-many", "", "more than 256"},
        RefusedRecipe{{"TooManyStepsInline"}, RecipeOf(R"({"op": "fuse", "of": [)" + Repeated(kBox, 256) + "]}"),
            "recipe.too-many", "1 (fuse)", "more than 256"},
        RefusedRecipe{{"TooManyPoints"},
            RecipeOf(R"({"op": "extrude", "length": 1, "profile": {"shape": "polygon", "points": [)" +
                     Repeated("[0, 0]", 513) + "]}}"),
            "recipe.too-many", "1 (extrude)", "\"points\""},
        RefusedRecipe{{"MoreThanAMegabyte"}, "{\"note\": \"" + std::string(2U << 20U, 'x') + "\"}", "recipe.too-large",
            "", "too long"}),
    RowName());

TEST(RecipeReadingDepth, TakesAHundredThousandBracketsWithoutHarm)
{
    const std::string deep(100000, '[');

    EXPECT_EQ(PlanOf(deep).reason.code, "recipe.syntax");
    EXPECT_EQ(PlanOf(R"({"steps": [{"op": "box", "size": )" + deep + std::string(100000, ']') + "}]}").reason.code,
        "recipe.wrong-shape");
}

TEST(RecipeReadingLimits, TakeAsManyStepsAsAreAllowed)
{
    EXPECT_TRUE(PlanOf(ManySteps(RecipeLimits::MostSteps - 1)).plan.has_value());
    EXPECT_FALSE(PlanOf(ManySteps(RecipeLimits::MostSteps)).plan.has_value());
}

TEST(RecipeReadingNames, MayBeChineseAndBuildOnEachOther)
{
    const PlanOutcome outcome =
        PlanOf(R"({"let": [["半径", "D/2"], ["twice", "半径*2"]], "steps": [{"op": "sphere", "radius": "twice"}]})",
            kParameters);

    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    EXPECT_EQ(std::get<SphereShape>(outcome.plan->steps[0].shape).radius, 100);
}

TEST(RecipeReadingFuse, WithoutArgumentsTakesWhatNothingHasUsed)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(R"(
        {"id": "used", "op": "sphere", "radius": 1},
        {"op": "cut", "from": {"op": "sphere", "radius": 9}, "tools": ["used"]},
        {"op": "sphere", "radius": 2},
        {"op": "fuse"})"));

    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    const auto& fuse = std::get<BooleanStep>(outcome.plan->steps.back().shape);
    // The spheres of the cut are its own; the cut and the last sphere remain.
    EXPECT_THAT(fuse.arguments, ::testing::ElementsAre(2U, 3U));
}

} // namespace
} // namespace familyfiles
