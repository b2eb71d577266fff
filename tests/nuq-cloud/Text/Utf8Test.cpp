#include "Text/Utf8.h"

#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

TEST(IsValidUtf8, AcceptsTextsOfEveryLength)
{
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8("pump"));
    EXPECT_TRUE(IsValidUtf8("φ"));
    EXPECT_TRUE(IsValidUtf8("水泵"));
    EXPECT_TRUE(IsValidUtf8("\xF0\x9F\x98\x80"));
    EXPECT_TRUE(IsValidUtf8("\xF4\x8F\xBF\xBF"));
}

TEST(IsValidUtf8, RefusesWhatNoEncoderWrites)
{
    EXPECT_FALSE(IsValidUtf8("\xFF"));
    EXPECT_FALSE(IsValidUtf8("\x80"));
    EXPECT_FALSE(IsValidUtf8("\xE6\xB3"));
    EXPECT_FALSE(IsValidUtf8("\xC0\xAF")) << "overlong, two bytes";
    EXPECT_FALSE(IsValidUtf8("\xE0\x80\xAF")) << "overlong, three bytes";
    EXPECT_FALSE(IsValidUtf8("\xF0\x80\x80\xAF")) << "overlong, four bytes";
    EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80")) << "surrogate";
    EXPECT_FALSE(IsValidUtf8("\xF4\x90\x80\x80")) << "above the last code point";
    EXPECT_FALSE(IsValidUtf8("\xC3(")) << "no continuation";
}

TEST(CodePointCount, CountsCharactersNotBytes)
{
    EXPECT_EQ(CodePointCount("a水泵\xF0\x9F\x98\x80"), 4U);
}

TEST(ToLower, LowersLettersOfTheCataloguesScripts)
{
    EXPECT_EQ(ToLower("DN50 ÄÖ ΦΩ ЖЁ ＡＺ 水泵"), "dn50 äö φω жё ａｚ 水泵");
}

TEST(ToLower, LeavesSignsBesideTheLettersAlone)
{
    EXPECT_EQ(ToLower("@[`{ × ÷ ß"), "@[`{ × ÷ ß");
}

} // namespace
} // namespace nuqcloud
