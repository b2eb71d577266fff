#include "FamilyFiles/Drawing/LineChaining.h"
#include "FamilyFiles/Drawing/LineSimplifying.h"

#include <cmath>
#include <gtest/gtest.h>

namespace familyfiles {
namespace {

LineSegment Piece(double fromU, double fromV, double toU, double toV)
{
    return {{fromU, fromV}, {toU, toV}};
}

using Lines = std::vector<std::vector<Point2>>;

TEST(LineChaining, JoinsPiecesThroughTheirCommonEnds)
{
    const Lines lines = ChainLines({Piece(10, 0, 20, 5), Piece(0, 0, 10, 0), Piece(30, 0, 20, 5)}, 0.01, 0.01);

    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), 4U);
}

TEST(LineChaining, LeavesPointsOnALineOut)
{
    const Lines lines =
        ChainLines({Piece(0, 0, 10, 0), Piece(10, 0, 20, 0.001), Piece(20, 0.001, 30, 0)}, 0.0001, 0.01);

    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), 2U);
}

TEST(LineChaining, EndsLinesWhereThreeMeet)
{
    const Lines lines = ChainLines({Piece(0, 0, 10, 0), Piece(10, 0, 20, 0), Piece(10, 0, 10, 9)}, 0.01, 0.01);

    EXPECT_EQ(lines.size(), 3U);
}

TEST(LineChaining, ClosesALoopWhereItBegan)
{
    const Lines lines =
        ChainLines({Piece(0, 0, 10, 0), Piece(10, 0, 10, 10), Piece(10, 10, 0, 10), Piece(0, 10, 0, 0)}, 0.01, 0.01);

    ASSERT_EQ(lines.size(), 1U);
    ASSERT_EQ(lines[0].size(), 5U);
    EXPECT_EQ(lines[0].front().u, lines[0].back().u);
    EXPECT_EQ(lines[0].front().v, lines[0].back().v);
}

TEST(LineChaining, DropsWhatStandsTwiceOrHasNoLength)
{
    const Lines lines =
        ChainLines({Piece(0, 0, 10, 0), Piece(10, 0, 0, 0), Piece(0, 0, 10, 0.001), Piece(3, 3, 3, 3)}, 0.01, 0.01);

    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), 2U);
}

TEST(LineChaining, TakesEndsOnBothSidesOfAGridLineForOne)
{
    // 0.0499 and 0.0501 round to different cells of a grid of 0.1.
    const Lines lines = ChainLines({Piece(-5, 3, 0.0499, 0), Piece(0.0501, 0, 7, 2)}, 0.1, 0.001);

    EXPECT_EQ(lines.size(), 1U);
}

TEST(LineChaining, GivesEveryPieceOnce)
{
    std::vector<LineSegment> pieces;
    double length = 0;
    for (int i = 0; i < 500; ++i) {
        // A generated net: nodes on a lattice, joined by a fixed rule.
        const double u = (i * 7) % 23;
        const double v = (i * 11) % 19;
        pieces.push_back(Piece(u, v, u + 1 + i % 3, v + i % 2));
    }
    for (const auto& line : ChainLines(pieces, 1e-3, 0)) {
        for (std::size_t i = 1; i < line.size(); ++i) {
            length += std::hypot(line[i].u - line[i - 1].u, line[i].v - line[i - 1].v);
        }
    }
    double expected = 0;
    std::vector<LineSegment> known;
    for (const LineSegment& piece : pieces) {
        bool isKnown = false;
        for (const LineSegment& other : known) {
            isKnown = isKnown || (piece.from.u == other.from.u && piece.from.v == other.from.v &&
                                     piece.to.u == other.to.u && piece.to.v == other.to.v);
        }
        if (!isKnown) {
            known.push_back(piece);
            expected += std::hypot(piece.to.u - piece.from.u, piece.to.v - piece.from.v);
        }
    }
    EXPECT_NEAR(length, expected, 1e-9);
}

TEST(LineDifference, TakesAwayPiecesWhicheverWayTheyRun)
{
    const auto rest = WithoutThose({Piece(0, 0, 5, 0), Piece(0, 0, 0, 5)}, {Piece(5, 0, 0, 0)}, 0.01);

    ASSERT_EQ(rest.size(), 1U);
    EXPECT_EQ(rest[0].to.v, 5);
}

TEST(LineSimplifying, KeepsEveryPointThatALineWouldMiss)
{
    std::vector<Point2> arc;
    for (int i = 0; i <= 900; ++i) {
        arc.push_back({100 * std::cos(i * 0.001), 100 * std::sin(i * 0.001)});
    }

    const std::vector<Point2> simple = Simplified(arc, 0.05);

    EXPECT_LT(simple.size(), 20U);
    for (std::size_t i = 1; i < simple.size(); ++i) {
        const double middleU = (simple[i].u + simple[i - 1].u) / 2;
        const double middleV = (simple[i].v + simple[i - 1].v) / 2;
        EXPECT_GT(std::hypot(middleU, middleV), 100 - 0.05);
    }
}

TEST(LineSimplifying, TakesAHundredThousandPointsWithoutDeepCalls)
{
    std::vector<Point2> comb;
    for (int i = 0; i < 100000; ++i) {
        comb.push_back({static_cast<double>(i), i % 2 == 0 ? 0.0 : i * 1e-9});
    }

    EXPECT_EQ(Simplified(comb, 1).size(), 2U);
}

} // namespace
} // namespace familyfiles
