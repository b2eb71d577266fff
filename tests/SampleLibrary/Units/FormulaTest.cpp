#include "Products/Formula.h"

#include "Reading/SourceError.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using samplelibrary::Formula;
using samplelibrary::SourceError;
using samplelibrary::Variables;

TEST(Formula, FollowsItsVariables)
{
    Variables variables{{"OD", 60.3}, {"Wall", 3.8}};
    const Formula formula("OD-2*Wall", variables, "here");
    EXPECT_NEAR(formula.Value(), 52.7, 1e-9);
    variables["Wall"] = 4.5;
    EXPECT_NEAR(formula.Value(), 51.3, 1e-9);
}

TEST(Formula, KnowsTheSeriesOfTheTrade)
{
    Variables variables;
    const auto value = [&variables](const char* text) { return Formula(text, variables, "here").Value(); };
    EXPECT_EQ(value("motor(7.6)"), 11);
    EXPECT_EQ(value("motor(7.5)"), 7.5);
    EXPECT_EQ(value("motor(9999)"), 630);
    EXPECT_EQ(value("amp(33)"), 40);
    EXPECT_EQ(value("dn(66)"), 80);
    EXPECT_EQ(value("step(101,50)"), 150);
    EXPECT_EQ(value("step(100,50)"), 100);
    EXPECT_NEAR(value("near(1.26,0.5)"), 1.5, 1e-9);
    EXPECT_EQ(value("1<2?ceil(1.2):floor(7.9)"), 2);
}

TEST(Formula, SaysWhereAnUnknownNameStands)
{
    Variables variables;
    try {
        Formula("Flow*2", variables, "water.tsv:7");
        FAIL();
    } catch (const SourceError& fault) {
        EXPECT_EQ(std::string(fault.what()), "water.tsv:7, \"Flow*2\": there is no number \"Flow\"");
    }
}

TEST(Formula, RefusesSyntaxFaultsAndInfiniteValues)
{
    Variables variables{{"x", 0.0}};
    EXPECT_THROW(Formula("1+", variables, "here"), SourceError);
    EXPECT_THROW(Formula("1/x", variables, "here").Value(), SourceError);
}

TEST(Formula, OverAMissingNumberIsNotANumber)
{
    Variables variables{{"x", std::numeric_limits<double>::quiet_NaN()}};
    EXPECT_TRUE(std::isnan(Formula("x+1", variables, "here").Value()));
}

} // namespace
