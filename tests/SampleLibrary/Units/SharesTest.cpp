#include "Catalogue/Shares.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

namespace {

using samplelibrary::Shares;
using testing::ElementsAre;

TEST(Shares, AddUpToTheTotalInProportion)
{
    EXPECT_THAT(Shares(12, {1, 2, 3}), ElementsAre(2, 4, 6));
    EXPECT_THAT(Shares(63, {10, 20, 30}), ElementsAre(11, 21, 31));
}

TEST(Shares, GiveEachAtLeastOneWhereTheTotalSuffices)
{
    EXPECT_THAT(Shares(3, {1000, 1, 1}), ElementsAre(1, 1, 1));
    EXPECT_THAT(Shares(2, {1, 1, 1}), ElementsAre(1, 1, 0));
}

TEST(Shares, OfTheSumOfTheWeightsAreTheWeights)
{
    EXPECT_THAT(Shares(37, {1, 16, 2, 18}), ElementsAre(1, 16, 2, 18));
}

TEST(Shares, AreExactForAllTotals)
{
    const std::vector<std::size_t> weights{7, 1, 13, 4, 4, 29};
    for (std::size_t total = 0; total < 500; ++total) {
        const std::vector<std::size_t> shares = Shares(total, weights);
        ASSERT_EQ(std::accumulate(shares.begin(), shares.end(), std::size_t{0}), total);
    }
}

} // namespace
