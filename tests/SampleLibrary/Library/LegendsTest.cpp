#include "support/BuiltLibrary.h"

#include <gtest/gtest.h>

namespace {

TEST(Legends, ShowEachEndCategoryInThreeViews)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM legend"),
        3 * library.Count("SELECT count(*) FROM category WHERE level = 2"));
    EXPECT_EQ(
        library.Count(
            "SELECT count(*) FROM category c WHERE level = 2 AND (SELECT group_concat(view, ',') FROM (SELECT view "
            "FROM legend l WHERE l.category_code = c.code ORDER BY view)) IS NOT '0,1,2'"),
        0);
    EXPECT_EQ(library.Count(
                  "SELECT count(*) FROM legend WHERE name_zh = '' OR name_en = '' OR standard_source = '' OR id <= 0"),
        0);
}

TEST(Legends, HaveIdsThatAJsonNumberKeepsExactly)
{
    BuiltLibrary library;
    EXPECT_LT(library.Count("SELECT max(id) FROM legend"), std::int64_t{1} << 53);
    EXPECT_GT(library.Count("SELECT max(id) FROM legend"), std::int64_t{1} << 32);
}

TEST(Mappings, MapEachEndCategoryWithNamesInBothLanguages)
{
    BuiltLibrary library;
    EXPECT_EQ(
        library.Count("SELECT count(*) FROM category_mapping m JOIN category c ON c.id = m.category_id AND c.code = "
                      "m.category_code AND c.major = m.major WHERE c.level = 2"),
        library.Count("SELECT count(*) FROM category WHERE level = 2"));
    for (const std::string& names : library.Texts("SELECT names FROM category_mapping")) {
        const nlohmann::json parsed = nlohmann::json::parse(names);
        ASSERT_EQ(parsed.size(), 2U);
        ASSERT_TRUE(parsed[0].is_string() && parsed[1].is_string());
    }
    EXPECT_EQ(library.Count("SELECT count(*) FROM category_mapping WHERE component_editor_category_id = ''"), 0);
}

} // namespace
