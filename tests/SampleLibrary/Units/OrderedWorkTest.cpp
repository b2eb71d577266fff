#include "Building/OrderedWork.h"

#include <atomic>
#include <gtest/gtest.h>
#include <numeric>
#include <stdexcept>
#include <string>

namespace {

using samplelibrary::OrderedWork;

TEST(OrderedWork, HandsResultsOverInOrder)
{
    for (const std::size_t threads : {1U, 3U, 16U}) {
        std::vector<std::size_t> taken;
        OrderedWork<std::size_t>(500, [](std::size_t number) {
            return number * 2;
        }).Run(threads, [&](std::size_t&& result) { taken.push_back(result); });
        ASSERT_EQ(taken.size(), 500U);
        for (std::size_t at = 0; at < taken.size(); ++at) {
            ASSERT_EQ(taken[at], at * 2);
        }
    }
}

TEST(OrderedWork, NeverRunsFarAheadOfTheTaker)
{
    std::atomic<std::size_t> made{0};
    std::size_t taken = 0;
    std::size_t farthest = 0;
    OrderedWork<int>(300, [&](std::size_t) { return static_cast<int>(++made); }).Run(2, [&](int&&) {
        ++taken;
        farthest = std::max(farthest, made.load() - taken);
    });
    EXPECT_LE(farthest, 2U * 4U);
}

TEST(OrderedWork, PassesOnWhatAMakerThrows)
{
    std::vector<std::size_t> taken;
    OrderedWork<std::size_t> work(100, [](std::size_t number) {
        if (number == 40) {
            throw std::runtime_error("forty");
        }
        return number;
    });
    try {
        work.Run(4, [&](std::size_t&& result) { taken.push_back(result); });
        FAIL();
    } catch (const std::runtime_error& fault) {
        EXPECT_EQ(std::string(fault.what()), "forty");
    }
    EXPECT_EQ(taken.size(), 40U);
}

TEST(OrderedWork, EndsWhenTheTakerThrows)
{
    OrderedWork<std::size_t> work(1'000'000, [](std::size_t number) { return number; });
    EXPECT_THROW(work.Run(4, [](std::size_t&&) { throw std::logic_error("full"); }), std::logic_error);
}

TEST(OrderedWork, OfNothingEnds)
{
    OrderedWork<int>(0, [](std::size_t) { return 1; }).Run(2, [](int&&) { FAIL(); });
}

} // namespace
