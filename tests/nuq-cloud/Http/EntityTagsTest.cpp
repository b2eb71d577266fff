#include "Http/EntityTags.h"

#include <gtest/gtest.h>
#include <ostream>

namespace nuqcloud {
namespace {

/// The value of a header, and what is found in it for the tag "ab".
struct Case
{
    const char* name;
    const char* header;
    const char* known;
};

void PrintTo(const Case& item, std::ostream* out)
{
    *out << item.header;
}

class EntityTags : public ::testing::TestWithParam<Case>
{
};

TEST_P(EntityTags, AreFoundInTheHeader)
{
    EXPECT_EQ(KnownTag(GetParam().header, "\"ab\""), GetParam().known);
}

INSTANTIATE_TEST_SUITE_P(Headers, EntityTags,
    ::testing::Values(Case{"Absent", "", ""}, Case{"Only", "\"ab\"", "\"ab\""}, Case{"Weak", "W/\"ab\"", "\"ab\""},
        Case{"Gzip", "\"ab-gzip\"", "\"ab-gzip\""}, Case{"First", "\"ab\",\"cd\"", "\"ab\""},
        Case{"Last", "\"cd\", W/\"ef\" ,\t\"ab\"", "\"ab\""}, Case{"FirstOfBoth", "\"ab-gzip\",\"ab\"", "\"ab-gzip\""},
        Case{"BehindATagWithAComma", "\"a,b\",\"ab\"", "\"ab\""}, Case{"InsideAnotherTag", "\"x,ab,y\"", ""},
        Case{"Any", "*", "\"ab\""}, Case{"AnyWithBlanks", " *\t", "\"ab\""}, Case{"AnyInQuotes", "\"*\"", ""},
        Case{"AnyAmongTags", "\"cd\", *", ""}, Case{"OtherCase", "\"AB\"", ""}, Case{"Longer", "\"abc\"", ""},
        Case{"Shorter", "\"a\"", ""}, Case{"WithoutQuotes", "ab", ""}, Case{"WithoutEnd", "\"ab", ""},
        Case{"BetweenTags", "\"x\"ab\"y\"", ""}, Case{"Empty", "\"\"", ""}),
    [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });

TEST(EntityTagsForm, OfTheGzipFormIsMarked)
{
    EXPECT_EQ(GzipTag("\"ab\""), "\"ab-gzip\"");
}

} // namespace
} // namespace nuqcloud
