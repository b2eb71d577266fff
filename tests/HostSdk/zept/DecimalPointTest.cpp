#include "zept/DecimalPoint.h"

#include <gtest/gtest.h>

using zept::WithPlainDecimalPoint;

TEST(APlainDecimalPoint, StaysWhereItIs)
{
    EXPECT_EQ(WithPlainDecimalPoint("1.5"), "1.5");
}

TEST(APlainDecimalPoint, ReplacesAComma)
{
    EXPECT_EQ(WithPlainDecimalPoint("  -1,5e+10  "), "  -1.5e+10  ");
}

TEST(APlainDecimalPoint, ReplacesAPointOfSeveralBytes)
{
    EXPECT_EQ(WithPlainDecimalPoint("1\xD9\xAB"
                                    "5"),
        "1.5");
}

TEST(APlainDecimalPoint, IsAddedToNoWholeNumber)
{
    EXPECT_EQ(WithPlainDecimalPoint("+0012"), "+0012");
    EXPECT_EQ(WithPlainDecimalPoint("-inf"), "-inf");
    EXPECT_EQ(WithPlainDecimalPoint("NAN"), "NAN");
    EXPECT_EQ(WithPlainDecimalPoint(""), "");
}

TEST(APlainDecimalPoint, StandsInHexadecimalNumbersToo)
{
    EXPECT_EQ(WithPlainDecimalPoint("0x1,8p+1"), "0x1.8p+1");
}

TEST(APlainDecimalPoint, StandsAtTheEndWhenTheNumberEndsWithIt)
{
    EXPECT_EQ(WithPlainDecimalPoint("3,"), "3.");
}
