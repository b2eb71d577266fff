#include "FamilyFiles/Recipe/Recipe.h"
#include "support/NamedCase.h"
#include "support/RecipeValues.h"

#include <gmock/gmock.h>
#include <limits>
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

struct RefusedNumbers : NamedCase
{
    std::string steps;
    std::string code;
    std::string english;
};

class RecipeEvaluation : public ::testing::TestWithParam<RefusedNumbers>
{
};

TEST_P(RecipeEvaluation, IsRefusedBeforeAnyGeometryIsMade)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(GetParam().steps), {{{"zero", 0}, {"n", 5}}, {}});

    EXPECT_FALSE(outcome.plan.has_value());
    EXPECT_EQ(outcome.reason.code, GetParam().code);
    EXPECT_THAT(outcome.reason.english, HasSubstr(GetParam().english));
    EXPECT_THAT(outcome.reason.english, HasSubstr("Step "));
    EXPECT_THAT(outcome.reason.chinese, HasSubstr("步骤"));
    EXPECT_THAT(outcome.reason.subject, Not(IsEmpty()));
}

std::string Extruded(const std::string& profile)
{
    return R"({"op": "extrude", "length": 10, "profile": {)" + profile + "}}";
}

std::string Polygon(const std::string& points)
{
    return Extruded(R"("shape": "polygon", "points": [)" + points + "]");
}

std::string Plate(const std::string& holes)
{
    return Extruded(R"("shape": "rectangle", "width": 100, "height": 60, "holes": [)" + holes + "]");
}

std::string Swept(const std::string& profile, const std::string& path)
{
    return R"({"op": "sweep", "profile": {)" + profile + R"(}, "path": [)" + path + "]}";
}

const std::string kRound = R"("shape": "circle", "radius": 10)";
const std::string kHole = R"({"shape": "circle", "radius": 10)";

INSTANTIATE_TEST_SUITE_P(Bounds, RecipeEvaluation,
    ::testing::Values(RefusedNumbers{{"ANegativeSize"}, R"({"op": "box", "size": [10, -10, 10]})",
                          "geometry.out-of-range", "\"size\" is -10 mm; possible is from 0.1 to 100000 mm"},
        RefusedNumbers{{"ASizeOfZero"}, R"({"op": "box", "size": [10, 10, 0]})", "geometry.out-of-range", "is 0 mm"},
        RefusedNumbers{{"ASizeBelowATenth"}, R"({"op": "sphere", "radius": 0.09})", "geometry.out-of-range", "0.09 mm"},
        RefusedNumbers{{"ASizeAboveAHundredMetres"}, R"({"op": "sphere", "radius": 100001})", "geometry.out-of-range",
            "100001 mm"},
        RefusedNumbers{{"APlaceTooFarAway"}, R"({"op": "sphere", "radius": 1, "at": [0, 0, -2e5]})",
            "geometry.out-of-range", "-200000 mm"},
        RefusedNumbers{{"ADivisionByZero"}, R"({"op": "sphere", "radius": "1/zero"})", "formula.division-by-zero", ""},
        RefusedNumbers{
            {"ARootOfANegativeNumber"}, R"-({"op": "sphere", "radius": "sqrt(-n)"})-", "formula.not-a-number", ""},
        RefusedNumbers{{"AnOverflow"}, R"-({"op": "sphere", "radius": "exp(1000*n)"})-", "formula.overflow", ""},
        RefusedNumbers{{"MoreThanAFullTurn"}, R"({"op": "cylinder", "radius": 1, "length": 1, "angle": 361})",
            "geometry.out-of-range", "361°"},
        RefusedNumbers{{"NoTurnAtAll"}, R"({"op": "cylinder", "radius": 1, "length": 1, "angle": 0})",
            "geometry.out-of-range", "0°"},
        RefusedNumbers{{"ABrokenCount"},
            R"({"op": "linearPattern", "count": 2.5, "step": [9, 0, 0], "of": {"op": "sphere", "radius": 1}})",
            "geometry.out-of-range", "a whole number from 1 to 1000"},
        RefusedNumbers{{"TooManyCopies"},
            R"({"op": "linearPattern", "count": 1001, "step": [9, 0, 0], "of": {"op": "sphere", "radius": 1}})",
            "geometry.out-of-range", "1001"},
        RefusedNumbers{{"TooManyCopiesInTwoDirections"},
            R"({"op": "linearPattern", "count": 1000, "count2": 1000, "step": [9, 0, 0], "step2": [0, 9, 0],
                "of": {"op": "sphere", "radius": 1}})",
            "recipe.too-many", "too many copies"},
        RefusedNumbers{{"PatternsOfPatterns"},
            R"({"op": "linearPattern", "count": 900, "step": [9, 0, 0], "of":
                {"op": "linearPattern", "count": 900, "step": [0, 9, 0], "of": {"op": "sphere", "radius": 1}}})",
            "geometry.too-large", "too many copies (810000, at most 2000)"},
        RefusedNumbers{{"TooManyFaces"},
            R"({"op": "linearPattern", "count": 1000, "step": [9, 0, 0], "of": {"op": "extrude", "length": 5,
                "profile": {"shape": "regular", "sides": 12, "across": 5}}})",
            "geometry.too-large", "too many faces (14000, at most 6000)"},
        RefusedNumbers{{"APatternThatStandsStill"},
            R"({"op": "linearPattern", "count": 2, "step": [0, 0, 0], "of": {"op": "sphere", "radius": 1}})",
            "geometry.out-of-range", "step of a pattern"},
        RefusedNumbers{{"AnAxisWithoutDirection"},
            R"({"op": "cylinder", "radius": 1, "length": 1, "axis": [0, "zero", 0]})", "geometry.out-of-range",
            "\"axis\" has no direction"},
        RefusedNumbers{{"ARadiusAndADiameter"}, R"({"op": "sphere", "radius": 1, "diameter": 2})",
            "recipe.missing-member", "Either \"diameter\" or \"radius\""},
        RefusedNumbers{{"NeitherRadiusNorDiameter"}, R"({"op": "sphere"})", "recipe.missing-member",
            "Either \"diameter\" or \"radius\""}),
    RowName());

INSTANTIATE_TEST_SUITE_P(Shapes, RecipeEvaluation,
    ::testing::Values(
        RefusedNumbers{{"AWallThickerThanTheRadius"}, R"({"op": "pipe", "radius": 10, "wall": 10, "length": 10})",
            "geometry.wall", "wall is thicker than the radius"},
        RefusedNumbers{{"ABoreAsWideAsThePipe"}, R"({"op": "pipe", "radius": 10, "bore": 20, "length": 10})",
            "geometry.wall", "leaves no wall"},
        RefusedNumbers{{"AWallOfHalfTheSmallerSide"},
            Extruded(R"("shape": "rectangle", "width": 100, "height": 60, "wall": 30)"), "geometry.wall",
            "leaves no opening"},
        RefusedNumbers{{"AWallOfHalfAnOval"}, Extruded(R"("shape": "oval", "width": 100, "height": 60, "wall": 31)"),
            "geometry.wall", "leaves no opening"},
        RefusedNumbers{{"ARoundingLargerThanHalfTheSide"},
            Extruded(R"("shape": "rectangle", "width": 100, "height": 60, "round": 31)"), "geometry.failed",
            "larger than half the smaller side"},
        RefusedNumbers{{"AConeWithoutRadii"}, R"({"op": "cone", "radius": 0, "radius2": 0, "length": 5})",
            "geometry.out-of-range", "needs a radius"},
        RefusedNumbers{{"ARingThickerThanItsRadius"}, R"({"op": "torus", "radius": 10, "thickness": 20})",
            "geometry.self-intersection", "thicker than its radius"},
        RefusedNumbers{{"ARevolvedProfileAcrossItsAxis"},
            R"({"op": "revolve", "profile": {"shape": "circle", "radius": 10, "at": [9, 0]}})",
            "geometry.self-intersection", "across the axis"},
        RefusedNumbers{{"AnOutlineThatCrossesItself"}, Polygon("[0,0], [10,10], [10,0], [0,12]"),
            "geometry.self-intersection", "crosses itself"},
        RefusedNumbers{{"AnOutlineThatTouchesItself"}, Polygon("[0,0], [10,0], [10,10], [5,0], [0,10]"),
            "geometry.self-intersection", "crosses itself"},
        RefusedNumbers{{"AnOutlineThatFoldsBack"}, Polygon("[0,0], [10,0], [5,0], [5,5]"), "geometry.self-intersection",
            "crosses itself"},
        RefusedNumbers{
            {"AnOutlineOnALine"}, Polygon("[0,0], [10,0], [20,0]"), "geometry.self-intersection", "no inside"},
        RefusedNumbers{{"AnOutlineOfTwoPoints"}, Polygon("[0,0], [10,0]"), "geometry.failed", "needs three points"},
        RefusedNumbers{{"ACornerRoundedTooMuch"}, Polygon("[0,0], [10,0,12], [10,10], [0,10]"), "geometry.failed",
            "radius is too large"},
        RefusedNumbers{{"TwoCornersThatNeedMoreThanTheirSide"}, Polygon("[0,0], [10,0,6], [10,10,6], [0,10]"),
            "geometry.failed", "radius is too large"},
        RefusedNumbers{{"AnArcOnALine"}, Polygon(R"([0,0], [10,0], {"arc": [10,5], "to": [10,10]}, [0,10])"),
            "geometry.failed", "lie on a line"},
        RefusedNumbers{{"AnArcThroughTheOutline"}, Polygon(R"([0,0], [20,0], {"arc": [10,-5], "to": [20,10]}, [0,10])"),
            "geometry.self-intersection", "crosses itself"},
        RefusedNumbers{{"TwoSides"}, Extruded(R"("shape": "regular", "sides": 2, "across": 10)"),
            "geometry.out-of-range", "at least three sides"},
        RefusedNumbers{{"AHoleBeyondTheOutline"}, Plate(kHole + R"(, "at": [45, 0]})"), "geometry.self-intersection",
            "not wholly inside"},
        RefusedNumbers{
            {"AHoleOutside"}, Plate(kHole + R"(, "at": [200, 0]})"), "geometry.self-intersection", "not wholly inside"},
        RefusedNumbers{{"AHoleAroundTheOutline"}, Plate(R"({"shape": "circle", "radius": 200})"),
            "geometry.self-intersection", "not wholly inside"},
        RefusedNumbers{{"HolesThatTouch"}, Plate(kHole + R"(, "grid": {"count": [2, 1], "step": [20, 0]}})"),
            "geometry.self-intersection", "Two holes"},
        RefusedNumbers{{"AHoleInAHole"}, Plate(kHole + R"(}, {"shape": "rectangle", "width": 2, "height": 2})"),
            "geometry.self-intersection", "Two holes"},
        RefusedNumbers{{"TooManyHoles"}, Plate(kHole + R"(, "grid": {"count": [1000, 1000], "step": [1, 1]}})"),
            "recipe.too-many", "more than 2000 holes"},
        RefusedNumbers{{"BoltHolesThatMeetTheBore"},
            R"({"op": "flange", "diameter": 100, "thickness": 10, "bore": 60,
                "bolts": {"count": 4, "circle": 70, "diameter": 12}})",
            "geometry.self-intersection", "Two holes"},
        RefusedNumbers{{"BoltHolesBeyondTheRim"},
            R"({"op": "flange", "diameter": 100, "thickness": 10, "bolts": {"count": 4, "circle": 95, "diameter": 12}})",
            "geometry.self-intersection", "not wholly inside"},
        RefusedNumbers{{"ARaisedFaceAsThickAsItsFlange"},
            R"({"op": "flange", "diameter": 100, "thickness": 10, "face": {"diameter": 50, "height": 10}})",
            "geometry.out-of-range", "thicker than its flange"},
        RefusedNumbers{{"ABendTighterThanTheProfile"}, Swept(kRound, "[-50,0,0], [0,0,0,9], [0,50,0]"),
            "geometry.self-intersection", "more tightly"},
        RefusedNumbers{{"ASecondBendTighterThanTheProfile"},
            Swept(
                R"("shape": "rectangle", "width": 10, "height": 40)", "[-90,0,0], [0,0,0,15], [0,90,0,15], [0,90,90]"),
            "geometry.self-intersection", "more tightly"},
        RefusedNumbers{{"APathThatTurnsBack"}, Swept(kRound, "[0,0,0], [100,0,0], [50,0,0]"),
            "geometry.self-intersection", "turns back"},
        RefusedNumbers{{"APathThroughItself"},
            Swept(kRound, "[0,0,0], [200,0,0,20], [200,200,0,20], [100,200,0,20], [100,-100,0]"),
            "geometry.self-intersection", "runs through itself"},
        RefusedNumbers{{"APathWithoutLength"}, Swept(kRound, "[5,5,5], [5,5,5]"), "geometry.failed", "no length"},
        RefusedNumbers{{"APathOfOnePoint"}, Swept(kRound, "[5,5,5]"), "geometry.failed", "a path two"},
        RefusedNumbers{{"ALoftOfOneSection"}, R"({"op": "loft", "sections": [{"profile": {)" + kRound + "}}]}",
            "geometry.failed", "needs two sections"},
        RefusedNumbers{{"ALoftOnOnePlane"},
            R"({"op": "loft", "sections": [{"profile": {)" + kRound + R"(}}, {"profile": {)" + kRound + "}}]}",
            "geometry.self-intersection", "ahead of the one before"},
        RefusedNumbers{{"ALoftThatGoesBack"},
            R"({"op": "loft", "sections": [{"profile": {)" + kRound + R"(}}, {"at": [0, 0, -5], "profile": {)" +
                kRound + "}}]}",
            "geometry.self-intersection", "ahead of the one before"},
        RefusedNumbers{{"ALoftBetweenATubeAndARod"},
            R"({"op": "loft", "sections": [{"profile": {)" + kRound + R"(}}, {"at": [0, 0, 5], "profile": {)" + kRound +
                R"(, "wall": 1}}]})",
            "geometry.failed", "different numbers of holes"},
        RefusedNumbers{{"AWalledPolygon"}, Extruded(R"("shape": "polygon", "wall": 1, "points": [[0,0],[9,0],[0,9]])"),
            "recipe.unknown-member", "no \"wall\""},
        RefusedNumbers{{"AnUnknownKindOfEdges"},
            R"({"op": "fillet", "radius": 1, "edges": {"kind": "oval"}, "of": {"op": "box", "size": [9, 9, 9]}})",
            "recipe.wrong-shape", "\"line\" or \"circle\""}),
    RowName());

TEST(RecipeEvaluationLimits, TakeTheBoundsThemselves)
{
    EXPECT_TRUE(PlanOf(RecipeOf(R"({"op": "box", "size": [0.1, 100000, "0.3/3"]})")).plan.has_value());
    EXPECT_TRUE(PlanOf(RecipeOf(R"({"op": "box", "size": [1, 1, 1], "at": [100000, -100000, 0]})")).plan.has_value());
}

class RecipeParametersThatAreNoNumbers : public ::testing::TestWithParam<double>
{
};

TEST_P(RecipeParametersThatAreNoNumbers, NeverReachAPlan)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(R"({"op": "box", "size": ["D", 10, 10]})"), {{{"D", GetParam()}}, {}});

    EXPECT_FALSE(outcome.plan.has_value());
    EXPECT_THAT(outcome.reason.code, Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(Values, RecipeParametersThatAreNoNumbers,
    ::testing::Values(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), 1e308));

TEST(RecipeRequirements, RefuseInBothLanguagesBeforeAnyStep)
{
    const PlanOutcome outcome = PlanOf(R"({"require": [
            {"that": "W < R", "zh": "壁厚须小于半径", "en": "The wall must be thinner than the radius"}],
        "steps": [{"op": "sphere", "radius": "R - W"}]})",
        {{{"W", 20}, {"R", 10}}, {}});

    EXPECT_EQ(outcome.reason.code, "geometry.require");
    EXPECT_EQ(outcome.reason.english, "The wall must be thinner than the radius");
    EXPECT_EQ(outcome.reason.chinese, "壁厚须小于半径");
}

const std::string kConditional = R"(
    {"id": "body", "op": "box", "size": [100, 100, 100]},
    {"id": "hole", "op": "cylinder", "radius": 5, "length": 100, "when": "Kind == \"drilled\""},
    {"op": "cut", "from": "body", "tools": ["hole"]})";

TEST(RecipeConditions, TakeAStepWhenTheyHold)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(kConditional), {{}, {{"Kind", "drilled"}}});

    ASSERT_TRUE(outcome.plan.has_value());
    EXPECT_EQ(outcome.plan->steps.size(), 3U);
}

TEST(RecipeConditions, LeaveACutWithoutToolsAsItIs)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(kConditional), {{}, {{"Kind", "plain"}}});

    ASSERT_TRUE(outcome.plan.has_value());
    EXPECT_EQ(outcome.plan->steps.size(), 1U);
    EXPECT_THAT(outcome.plan->result, ::testing::ElementsAre(0U));
}

TEST(RecipeConditions, LeaveOutWhatDependsOnAnAbsentStepAlone)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(R"(
        {"op": "sphere", "radius": 1},
        {"op": "polarPattern", "count": 4, "of": {"op": "sphere", "radius": 2, "at": [9, 0, 0], "when": "1 > 2"}},
        {"op": "fuse"})"));

    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    EXPECT_EQ(outcome.plan->steps.size(), 2U);
}

TEST(RecipeConditions, RefuseWhenNothingIsLeft)
{
    const PlanOutcome outcome = PlanOf(RecipeOf(R"({"op": "sphere", "radius": 1, "when": "no"})"));

    EXPECT_EQ(outcome.reason.code, "geometry.empty");
}

TEST(RecipeConditions, KeepTheNumbersOfAbsentStepsUnread)
{
    const PlanOutcome outcome = PlanOf(
        RecipeOf(R"({"op": "sphere", "radius": "1/0", "when": "no"}, {"op": "sphere", "radius": 1}, {"op": "fuse"})"));

    EXPECT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
}

TEST(RecipeConnectors, AreWorkedOutWithTheRecipesNames)
{
    Reason reason;
    const Scope scope = familyfiles::testing::ScopeOf({{{"L", 300}}, {}});
    const auto recipe =
        Recipe::Parse(R"({"let": [["h", "L/2"]], "steps": [{"op": "sphere", "radius": 1}]})", scope, reason);
    ASSERT_TRUE(recipe.has_value());
    Connector connector;
    connector.name = "in";
    connector.position = {"-h", "0", "1"};
    connector.direction = {"-2", "0", "0"};
    connector.shape = "rectangular";
    connector.size = {"40", "h/5"};

    const auto marks = recipe->EvaluateConnectors({connector}, scope, reason);

    ASSERT_TRUE(marks.has_value()) << reason.english;
    EXPECT_EQ(marks->front().position.x, -150);
    EXPECT_EQ(marks->front().direction.x, -1);
    EXPECT_EQ(marks->front().shape, ConnectorShape::Rectangular);
    EXPECT_EQ(marks->front().width, 40);
    EXPECT_EQ(marks->front().height, 30);
}

TEST(RecipeConnectors, AreRefusedByName)
{
    Reason reason;
    const auto recipe = Recipe::Parse(RecipeOf(R"({"op": "sphere", "radius": 1})"), Scope(), reason);
    ASSERT_TRUE(recipe.has_value());
    Connector connector;
    connector.name = "in";
    connector.position = {"0", "0", "0"};
    connector.direction = {"0", "0", "0"};

    EXPECT_FALSE(recipe->EvaluateConnectors({connector}, Scope(), reason).has_value());
    EXPECT_EQ(reason.subject, "in");
    EXPECT_EQ(reason.english, "Connector in: The connector has no direction");
}

} // namespace
} // namespace familyfiles
