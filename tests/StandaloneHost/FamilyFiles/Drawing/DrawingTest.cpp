#include "FamilyFiles/Drawing/Drawing.h"
#include "support/BuiltSolid.h"
#include "support/DrawnLines.h"
#include "support/MeasuredRecipes.h"

#include <gtest/gtest.h>

namespace familyfiles {
namespace {

using familyfiles::testing::BuiltSolidOf;
using familyfiles::testing::DrawnBox;
using familyfiles::testing::DrawnLength;
using familyfiles::testing::Kernel;
using familyfiles::testing::MeasuredRecipe;
using familyfiles::testing::RecipeOf;

Drawing DrawingOf(const Solid& solid, DrawingView view, const std::vector<ConnectorMark>& connectors = {})
{
    Reason reason;
    const auto drawing = Kernel().Draw(solid, view, connectors, reason);
    EXPECT_TRUE(drawing.has_value()) << reason.english;
    return drawing.value_or(Drawing());
}

/// The sides of the solid's box that a view shows: least and greatest u, least and greatest v.
std::array<double, 4> SeenSides(const std::array<double, 6>& box, DrawingView view)
{
    switch (view) {
    case DrawingView::Plan:
        return {box[0], box[3], box[1], box[4]};
    case DrawingView::Elevation:
        return {box[0], box[3], box[2], box[5]};
    case DrawingView::Profile:
        break;
    }
    return {box[1], box[4], box[2], box[5]};
}

class DrawingOutlines : public ::testing::TestWithParam<MeasuredRecipe>
{
};

TEST_P(DrawingOutlines, ReachAsFarAsTheSolid)
{
    const auto solid = BuiltSolidOf(GetParam().recipe);
    ASSERT_NE(solid, nullptr);
    const std::array<double, 6> box = GetParam().box;
    const double diagonal = std::hypot(std::hypot(box[3] - box[0], box[4] - box[1]), box[5] - box[2]);

    for (const DrawingView view : {DrawingView::Plan, DrawingView::Elevation, DrawingView::Profile}) {
        const Drawing drawing = DrawingOf(*solid, view);
        const std::array<double, 4> drawn = DrawnBox(drawing, LineStyle::Outline);
        const std::array<double, 4> seen = SeenSides(box, view);
        for (std::size_t i = 0; i < seen.size(); ++i) {
            EXPECT_NEAR(drawn[i], seen[i], diagonal * 2e-3) << "view " << static_cast<int>(view) << " side " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DrawingOutlines, ::testing::ValuesIn(familyfiles::testing::MeasuredRecipes()), testsupport::RowName());

TEST(DrawingOfABlock, IsItsRectangleAlone)
{
    const auto solid = BuiltSolidOf(RecipeOf(R"({"op": "box", "size": [40, 20, 30]})"));
    const Drawing drawing = DrawingOf(*solid, DrawingView::Elevation);

    ASSERT_EQ(drawing.paths.size(), 1U);
    EXPECT_EQ(drawing.paths[0].style, LineStyle::Outline);
    EXPECT_EQ(drawing.paths[0].points.size(), 5U);
    EXPECT_NEAR(DrawnLength(drawing, LineStyle::Outline), 140, 1e-6);
}

TEST(DrawingOfAPipe, ShowsTheBoreHiddenFromTheSideAndOpenFromTheEnd)
{
    const auto solid =
        BuiltSolidOf(RecipeOf(R"({"op": "pipe", "diameter": 100, "wall": 20, "length": 300, "axis": "X"})"));

    const Drawing side = DrawingOf(*solid, DrawingView::Elevation);
    EXPECT_NEAR(DrawnLength(side, LineStyle::Hidden), 2 * 300, 1);
    EXPECT_NEAR(DrawnLength(side, LineStyle::Outline), 2 * (300 + 100), 1);
    EXPECT_NEAR(DrawnLength(side, LineStyle::Visible), 0, 1);

    const Drawing end = DrawingOf(*solid, DrawingView::Profile);
    EXPECT_NEAR(DrawnLength(end, LineStyle::Hidden), 0, 1);
    EXPECT_NEAR(DrawnLength(end, LineStyle::Outline), 3.1416 * (100 + 60), 3);
}

TEST(DrawingOfAStep, TellsEdgesInsideFromTheOutline)
{
    const auto solid = BuiltSolidOf(
        RecipeOf(R"({"op": "box", "size": [100, 100, 20]}, {"op": "box", "size": [40, 40, 60]}, {"op": "fuse"})"));
    const Drawing plan = DrawingOf(*solid, DrawingView::Plan);

    EXPECT_NEAR(DrawnLength(plan, LineStyle::Outline), 400, 1);
    EXPECT_NEAR(DrawnLength(plan, LineStyle::Visible), 160, 1);
    EXPECT_EQ(DrawnLength(plan, LineStyle::Hidden), 0);
}

TEST(DrawingOfAnEdge, IsOutlineOnlyWhereTheBackgroundBegins)
{
    // A post in front of the middle of a wall: the wall's top runs behind it on both sides.
    const auto solid = BuiltSolidOf(RecipeOf(
        R"({"op": "box", "size": [300, 20, 100]}, {"op": "box", "size": [60, 20, 200], "at": [0, -20, 0]}, {"op": "fuse"})"));
    const Drawing elevation = DrawingOf(*solid, DrawingView::Elevation);

    EXPECT_NEAR(DrawnLength(elevation, LineStyle::Outline), 300 + 2 * 100 + 2 * 120 + 2 * 100 + 60, 12);
    EXPECT_NEAR(DrawnLength(elevation, LineStyle::Visible), 2 * 100, 12);
}

TEST(DrawingOfASmoothJoint, HasNoLineThere)
{
    const auto solid = BuiltSolidOf(RecipeOf(R"({"op": "cylinder", "diameter": 60, "length": 100},
        {"op": "dome", "diameter": 60, "depth": 30, "at": [0, 0, 100]}, {"op": "fuse"})"));
    const Drawing elevation = DrawingOf(*solid, DrawingView::Elevation);

    EXPECT_NEAR(DrawnLength(elevation, LineStyle::Visible), 0, 3);
    EXPECT_NEAR(DrawnLength(elevation, LineStyle::Hidden), 0, 3);
}

const std::string kWithAxes = R"({"steps": [{"op": "cylinder", "diameter": 60, "length": 200, "axis": "X"}],
    "centreLines": [{"from": [0, 0, 0], "to": [200, 0, 0]}, {"from": [200, 0, 0], "to": [0, 0, 0]},
        {"at": [100, 0, 0], "axis": "Z", "length": 60, "when": "1 > 2"},
        {"axis": "X", "diameter": 40}]})";

TEST(DrawingCentreLines, ReachBeyondTheComponentOnceEach)
{
    const auto solid = BuiltSolidOf(kWithAxes);
    const Drawing elevation = DrawingOf(*solid, DrawingView::Elevation);
    const auto lines = familyfiles::testing::PathsOf(elevation, LineStyle::Centre);

    ASSERT_EQ(lines.size(), 2U) << "the axis and the circle seen from its edge";
    EXPECT_LT(lines[0].points[0].u, 0);
    EXPECT_GT(lines[0].points[1].u, 200);
    EXPECT_NEAR(lines[1].points[0].u, lines[1].points[1].u, 1e-6);
    EXPECT_NEAR(std::abs(lines[1].points[0].v - lines[1].points[1].v), 40, 12);
}

TEST(DrawingCentreLines, AreACrossAndACircleFromTheEnd)
{
    const auto solid = BuiltSolidOf(kWithAxes);
    const Drawing profile = DrawingOf(*solid, DrawingView::Profile);
    const auto lines = familyfiles::testing::PathsOf(profile, LineStyle::Centre);

    ASSERT_EQ(lines.size(), 3U);
    for (const Point2& point : lines[2].points) {
        EXPECT_NEAR(std::hypot(point.u, point.v), 20, 1e-6);
    }
}

TEST(DrawingCentreLines, DoNotCountForTheComponentsSize)
{
    const auto solid = BuiltSolidOf(kWithAxes);
    const Drawing elevation = DrawingOf(*solid, DrawingView::Elevation);

    EXPECT_NEAR(elevation.low.u, 0, 0.2);
    EXPECT_NEAR(elevation.high.u, 200, 0.2);
}

TEST(DrawingConnectors, PointAwayFromTheComponent)
{
    const auto solid = BuiltSolidOf(RecipeOf(R"({"op": "box", "size": [100, 100, 100]})"));
    ConnectorMark mark;
    mark.position = {50, 0, 50};
    mark.direction = {1, 0, 0};

    const auto arrow = DrawnBox(DrawingOf(*solid, DrawingView::Elevation, {mark}), LineStyle::Connector);
    EXPECT_NEAR(arrow[0], 50, 1e-9);
    EXPECT_GT(arrow[1], 55);
    EXPECT_NEAR((arrow[2] + arrow[3]) / 2, 50, 1e-9);

    const auto towards =
        familyfiles::testing::PathsOf(DrawingOf(*solid, DrawingView::Profile, {mark}), LineStyle::Connector);
    EXPECT_EQ(towards.size(), 2U) << "a ring with a dot";
    mark.direction = {-1, 0, 0};
    const auto away =
        familyfiles::testing::PathsOf(DrawingOf(*solid, DrawingView::Profile, {mark}), LineStyle::Connector);
    EXPECT_EQ(away.size(), 3U) << "a ring with a cross";
}

TEST(DrawingOrder, PutsHeavyLinesAboveLightOnes)
{
    const auto solid = BuiltSolidOf(kWithAxes);
    const Drawing drawing = DrawingOf(*solid, DrawingView::Elevation);

    EXPECT_TRUE(std::is_sorted(drawing.paths.begin(), drawing.paths.end(),
        [](const DrawingPath& a, const DrawingPath& b) { return a.style < b.style; }));
}

} // namespace
} // namespace familyfiles
