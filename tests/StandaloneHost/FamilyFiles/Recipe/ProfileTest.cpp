#include "FamilyFiles/Recipe/LoopMaking.h"
#include "FamilyFiles/Recipe/LoopSamples.h"
#include "support/RecipeValues.h"

#include <cmath>
#include <gtest/gtest.h>

namespace familyfiles {
namespace {

constexpr double kPi = 3.14159265358979323846;

double AreaOf(const Loop& loop)
{
    return DoubleArea(SamplesOf(loop)) / 2;
}

void ExpectClosed(const Loop& loop)
{
    for (std::size_t i = 0; i < loop.segments.size(); ++i) {
        const Segment& next = loop.segments[(i + 1) % loop.segments.size()];
        EXPECT_NEAR(loop.segments[i].to.u, next.from.u, 1e-9);
        EXPECT_NEAR(loop.segments[i].to.v, next.from.v, 1e-9);
    }
}

TEST(ProfileLoops, RunCounterClockwiseAroundTheirArea)
{
    EXPECT_NEAR(AreaOf(RectangleLoop(40, 20, 0)), 800, 1e-9);
    EXPECT_NEAR(AreaOf(CircleLoop(10)), kPi * 100, 1);
    EXPECT_NEAR(AreaOf(EllipseLoop(40, 20)), kPi * 200, 2);
    EXPECT_NEAR(AreaOf(OvalLoop(40, 20)), 20 * 20 + kPi * 100, 2);
    EXPECT_NEAR(AreaOf(OvalLoop(20, 40)), 20 * 20 + kPi * 100, 2);
    EXPECT_NEAR(AreaOf(RegularLoop(6, 20)), 2 * std::sqrt(3.0) * 100, 1e-9);
    EXPECT_NEAR(AreaOf(RectangleLoop(40, 20, 5)), 800 - (4 - kPi) * 25, 0.5);
}

TEST(ProfileLoops, AreClosed)
{
    ExpectClosed(RectangleLoop(40, 20, 0));
    ExpectClosed(RectangleLoop(40, 20, 5));
    ExpectClosed(RectangleLoop(20, 20, 10));
    ExpectClosed(OvalLoop(40, 20));
    ExpectClosed(OvalLoop(20, 40));
    ExpectClosed(RegularLoop(5, 20));
}

TEST(ProfileLoops, LeaveSidesOfNoLengthOut)
{
    EXPECT_EQ(RectangleLoop(40, 20, 10).segments.size(), 6U);
    EXPECT_EQ(RectangleLoop(20, 20, 10).segments.size(), 4U);
    EXPECT_EQ(OvalLoop(20, 20).kind, LoopKind::Circle);
    EXPECT_EQ(EllipseLoop(20, 20).kind, LoopKind::Circle);
}

TEST(ProfileLoops, LieARegularPolygonOnASide)
{
    const PlaneBox box = BoxOf(SamplesOf(RegularLoop(6, 20)));

    EXPECT_NEAR(box.low.v, -10, 1e-9);
    EXPECT_NEAR(box.high.v, 10, 1e-9);
    EXPECT_NEAR(box.high.u, 20 / std::sqrt(3.0), 1e-9);
}

TEST(ProfilePolygons, AreTurnedCounterClockwise)
{
    const auto outcome = testing::PlanOf(testing::RecipeOf(
        R"({"op": "extrude", "length": 1, "profile": {"shape": "polygon", "points": [[0,0], [0,10], [10,10,4], [10,0]]}})"));
    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    const Loop& loop = std::get<PrismShape>(outcome.plan->steps[0].shape).section.outline;

    EXPECT_NEAR(AreaOf(loop), 100 - (1 - kPi / 4) * 16, 0.2);
    ExpectClosed(loop);
}

TEST(ProfileSamples, StayNearTheirArc)
{
    for (const Point2& point : SamplesOf(OvalLoop(400, 200))) {
        if (std::abs(point.u) > 100) {
            EXPECT_NEAR(std::hypot(std::abs(point.u) - 100, point.v), 100, 1e-9);
        }
    }
}

TEST(ProfileCrossings, AreFoundBetweenManyPiecesQuickly)
{
    std::vector<Point2> star;
    for (int i = 0; i < 20000; ++i) {
        const double angle = 2 * kPi * i / 20000;
        const double radius = i % 2 == 0 ? 100 : 99;
        star.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    EXPECT_FALSE(CrossesItself(star));
    std::swap(star[500], star[900]);
    EXPECT_TRUE(CrossesItself(star));
}

TEST(ProfileHoles, MayStandCloseTogether)
{
    const auto outcome = testing::PlanOf(testing::RecipeOf(
        R"({"op": "extrude", "length": 1, "profile": {"shape": "rectangle", "width": 100, "height": 60,
            "holes": [{"shape": "circle", "radius": 4.9, "grid": {"count": [9, 5], "step": [10, 10]}}]}})"));

    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    EXPECT_EQ(std::get<PrismShape>(outcome.plan->steps[0].shape).section.holes.size(), 45U);
}

TEST(ProfileHoles, StandOnACircleFromTheTop)
{
    const auto outcome = testing::PlanOf(testing::RecipeOf(
        R"({"op": "extrude", "length": 1, "profile": {"shape": "circle", "radius": 50, "at": [7, 0],
            "holes": [{"shape": "rectangle", "width": 4, "height": 8, "polar": {"count": 4, "diameter": 60}}]}})"));
    ASSERT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    const auto& holes = std::get<PrismShape>(outcome.plan->steps[0].shape).section.holes;

    ASSERT_EQ(holes.size(), 4U);
    const PlaneBox top = BoxOf(SamplesOf(holes[0]));
    EXPECT_NEAR(top.low.v, 26, 1e-9);
    EXPECT_NEAR(top.low.u, 5, 1e-9);
    const PlaneBox left = BoxOf(SamplesOf(holes[1]));
    EXPECT_NEAR(left.high.u, 7 - 26, 1e-9);
    EXPECT_NEAR(left.high.v, 2, 1e-9);
}

} // namespace
} // namespace familyfiles
