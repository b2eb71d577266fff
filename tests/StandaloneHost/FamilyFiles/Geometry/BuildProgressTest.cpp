#include "FamilyFiles/BuildProgress.h"
#include "support/BuiltSolid.h"

#include <gtest/gtest.h>
#include <vector>

namespace familyfiles {
namespace {

using familyfiles::testing::Kernel;
using familyfiles::testing::PlanOf;
using familyfiles::testing::RecipeOf;

/// Breaks off at the given call and keeps what it was told.
class RecordingProgress : public BuildProgress
{
public:
    explicit RecordingProgress(std::size_t lastCall) : m_lastCall(lastCall) {}

    bool Report(double done) override
    {
        m_reports.push_back(done);
        return m_reports.size() <= m_lastCall;
    }

    const std::vector<double>& Reports() const { return m_reports; }

private:
    std::size_t m_lastCall;
    std::vector<double> m_reports;
};

/// A wall of balls that run into each other: seconds of work in one operation.
ShapePlan LongWork()
{
    const auto outcome = PlanOf(RecipeOf(R"({"op": "linearPattern", "count": 14, "count2": 14, "step": [7, 1, 2],
        "step2": [1, 7, 3], "of": {"op": "torus", "radius": 5, "thickness": 4}}, {"op": "fuse"})"));
    EXPECT_TRUE(outcome.plan.has_value()) << outcome.reason.english;
    return *outcome.plan;
}

TEST(BuildProgressOfShortWork, RisesToTheEnd)
{
    RecordingProgress progress(1000000);
    const auto outcome = PlanOf(RecipeOf(
        R"({"op": "box", "size": [9, 9, 9]}, {"op": "sphere", "radius": 5, "at": [5, 5, 5]}, {"op": "fuse"})"));

    const BuildResult result = Kernel().Build(*outcome.plan, &progress);

    EXPECT_NE(result.solid, nullptr);
    ASSERT_GE(progress.Reports().size(), 4U);
    EXPECT_TRUE(std::is_sorted(progress.Reports().begin(), progress.Reports().end()));
    EXPECT_EQ(progress.Reports().front(), 0);
    EXPECT_LE(progress.Reports().back(), 1);
}

TEST(BuildProgressThatSaysNoAtOnce, MakesNothing)
{
    RecordingProgress progress(0);

    const BuildResult result = Kernel().Build(LongWork(), &progress);

    EXPECT_EQ(result.solid, nullptr);
    EXPECT_EQ(result.reason.code, "geometry.cancelled");
    EXPECT_EQ(progress.Reports().size(), 1U);
}

TEST(BuildProgressThatSaysNoLater, BreaksOffInsideAnOperation)
{
    RecordingProgress progress(10);

    const BuildResult result = Kernel().Build(LongWork(), &progress);

    EXPECT_EQ(result.solid, nullptr);
    EXPECT_EQ(result.reason.code, "geometry.cancelled");
    EXPECT_EQ(result.reason.subject, "3 (fuse)");
    EXPECT_EQ(progress.Reports().size(), 11U) << "it is not asked again";
}

TEST(BuildTime, IsBounded)
{
    const OcctKernel hasty{std::chrono::milliseconds(30)};

    const BuildResult result = hasty.Build(LongWork(), nullptr);

    EXPECT_EQ(result.solid, nullptr);
    EXPECT_EQ(result.reason.code, "geometry.time");
    EXPECT_EQ(result.reason.english, "Step 3 (fuse): The shape takes too long to make");
}

} // namespace
} // namespace familyfiles
