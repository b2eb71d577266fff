#include "support/BuiltLibrary.h"

#include <gtest/gtest.h>

namespace {

TEST(Projects, HoldHundredsOfTheCataloguesComponents)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM project"), 5);
    EXPECT_EQ(library.Count("SELECT count(*) FROM project WHERE name_zh = '' OR name_en = ''"), 0);
    EXPECT_EQ(library.Count("SELECT count(*) FROM project_component WHERE project_id = 'P2401'"), 480);
    EXPECT_GE(
        library.Count("SELECT min(n) FROM (SELECT count(*) AS n FROM project_component GROUP BY project_id)"), 200);
}

TEST(Projects, ReferToExistingComponentsAtTheirPositions)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count(
                  "SELECT count(*) FROM project_component q LEFT JOIN component c ON c.id = q.public_component_id AND "
                  "c.position = q.position WHERE c.id IS NULL"),
        0);
    EXPECT_EQ(
        library.Count(
            "SELECT count(*) FROM project_component q LEFT JOIN project p ON p.id = q.project_id WHERE p.id IS NULL"),
        0);
}

TEST(Projects, HoldSomeComponentsInAnOlderVersion)
{
    BuiltLibrary library;
    const std::string joined =
        "SELECT count(*) FROM project_component q JOIN component c ON c.id = q.public_component_id WHERE ";
    EXPECT_GT(library.Count(joined + "q.version < c.version"), 100);
    EXPECT_EQ(library.Count(joined + "q.version > c.version OR q.version < 1"), 0);
    EXPECT_EQ(library.Count(joined + "(q.version < c.version) <> (q.status = 'outdated')"), 0);
}

TEST(Projects, OfOneMajorHoldOnlyItsComponents)
{
    BuiltLibrary library;
    EXPECT_EQ(
        library.Count(
            "SELECT count(*) FROM project_component q JOIN component c ON c.id = q.public_component_id JOIN category k "
            "ON k.code = c.category_code WHERE q.project_id = 'P2403' AND k.major <> 1"),
        0);
}

} // namespace
