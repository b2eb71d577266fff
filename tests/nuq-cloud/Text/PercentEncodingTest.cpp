#include "Text/PercentEncoding.h"

#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

TEST(PercentDecode, UndoesEscapesInEitherCase)
{
    EXPECT_EQ(PercentDecode("%E6%B3%b5%2F1", PlusSign::Literal), "泵/1");
}

TEST(PercentDecode, ReadsPlusAsBlankOnlyInQueries)
{
    EXPECT_EQ(PercentDecode("a+b%2B", PlusSign::Blank), "a b+");
    EXPECT_EQ(PercentDecode("a+b%2B", PlusSign::Literal), "a+b+");
}

TEST(PercentDecode, RefusesBrokenEscapes)
{
    for (const char* text : {"%", "%1", "a%zz", "%g0", "%0"}) {
        EXPECT_EQ(PercentDecode(text, PlusSign::Blank), std::nullopt) << text;
    }
}

TEST(PercentDecode, RefusesNulAndInvalidUtf8)
{
    EXPECT_EQ(PercentDecode("a%00b", PlusSign::Blank), std::nullopt);
    EXPECT_EQ(PercentDecode("%FF", PlusSign::Blank), std::nullopt);
    EXPECT_EQ(PercentDecode("%ED%A0%80", PlusSign::Blank), std::nullopt);
}

TEST(PercentEncode, KeepsLettersDigitsAndWhatItIsTold)
{
    EXPECT_EQ(PercentEncode("aZ9/泵 -\n", "/-"), "aZ9/%E6%B3%B5%20-%0A");
}

} // namespace
} // namespace nuqcloud
