#include "Reading/Texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using samplelibrary::NumberText;
using samplelibrary::ParsedNumber;
using samplelibrary::Split;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Texts, SplitKeepsEmptyParts)
{
    EXPECT_THAT(Split("a;b", ';'), ElementsAre("a", "b"));
    EXPECT_THAT(Split("a;;b", ';'), ElementsAre("a", "", "b"));
    EXPECT_THAT(Split(";a;", ';'), ElementsAre("", "a", ""));
    EXPECT_THAT(Split("a", ';'), ElementsAre("a"));
    EXPECT_THAT(Split("", ';'), IsEmpty());
}

TEST(Texts, NumbersHaveNoTrailingZeros)
{
    EXPECT_EQ(NumberText(2.5, 3), "2.5");
    EXPECT_EQ(NumberText(100.0, 2), "100");
    EXPECT_EQ(NumberText(100.0, 0), "100");
    EXPECT_EQ(NumberText(0.004, 2), "0");
    EXPECT_EQ(NumberText(-0.004, 2), "0");
    EXPECT_EQ(NumberText(-1.25, 1), "-1.2");
    EXPECT_EQ(NumberText(1234567.891, 2), "1234567.89");
}

TEST(Texts, OnlyWholeTextsAreNumbers)
{
    EXPECT_EQ(ParsedNumber("12.5"), 12.5);
    EXPECT_EQ(ParsedNumber("-3"), -3.0);
    for (const char* text : {"", "12a", " 12", "12 ", "1,5", "DN50"}) {
        EXPECT_EQ(ParsedNumber(text), std::nullopt) << text;
    }
}

TEST(Texts, LoweringLeavesOtherLettersAlone)
{
    EXPECT_EQ(samplelibrary::Lowered("DN50 水泵 PN16"), "dn50 水泵 pn16");
}

TEST(Texts, ReplacedTextIsNotReplacedAgain)
{
    EXPECT_EQ(samplelibrary::Replaced("aXbX", "X", "XX"), "aXXbXX");
    EXPECT_EQ(samplelibrary::Replaced("F_F", "_", ""), "FF");
}

TEST(Texts, TrimmedHasNoBlanksAtItsEnds)
{
    EXPECT_EQ(samplelibrary::Trimmed(" \t a b\r\n"), "a b");
    EXPECT_EQ(samplelibrary::Trimmed("  "), "");
}

} // namespace
