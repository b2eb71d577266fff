#include "Api/Language.h"

#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

TEST(PreferredLanguage, IsChineseForEveryChineseTag)
{
    for (const char* header : {"zh", "zh-CN", "ZH-hans-cn", "zh-CN,zh;q=0.9,en;q=0.8", " zh ", "de, zh;q=0.1"}) {
        EXPECT_EQ(PreferredLanguage(header), Language::Chinese) << header;
    }
}

TEST(PreferredLanguage, IsEnglishOtherwise)
{
    for (const char* header : {"", "*", "en", "de-DE", "zhx", "en, zh", "zh;q=0", "zh;q=abc", "zh;q=0.5, en;q=0.6"}) {
        EXPECT_EQ(PreferredLanguage(header), Language::English) << header;
    }
}

TEST(PreferredLanguage, WeighsDecimals)
{
    EXPECT_EQ(PreferredLanguage("en;q=0.499, zh;q=0.5"), Language::Chinese);
    EXPECT_EQ(PreferredLanguage("en;q=0.51, zh;q=0.509"), Language::English);
}

} // namespace
} // namespace nuqcloud
