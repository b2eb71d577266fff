#include "Catalogue/CategoryTree.h"
#include "Reading/SourceReader.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace samplelibrary;

const ProductSource& Source()
{
    static const SourceFiles files;
    static const ProductSource source = ReadSource(files);
    return source;
}

TEST(CategoryTree, KeepsIdsAndCodesInATreeOfAnySize)
{
    const CategoryTree natural = MakeCategoryTree(Source(), 0);
    std::map<std::string, int> ids;
    for (const CategoryNode& node : natural) {
        ids[node.Code] = node.Id;
    }
    for (const std::size_t count : {1U, 40U, 5000U}) {
        const CategoryTree tree = MakeCategoryTree(Source(), count);
        EXPECT_EQ(CountEndCategories(tree), count);
        for (const CategoryNode& node : tree) {
            if (ids.count(node.Code) != 0) {
                ASSERT_EQ(node.Id, ids.at(node.Code)) << node.Code;
            }
        }
    }
}

TEST(CategoryTree, OfTheLargestSizeHasDistinctIdsCodesAndStems)
{
    const CategoryTree tree = MakeCategoryTree(Source(), 40'000);
    std::set<int> ids;
    std::set<std::string> codes;
    std::set<std::string> stems;
    for (const CategoryNode& node : tree) {
        ASSERT_TRUE(ids.insert(node.Id).second) << node.Code;
        ASSERT_GT(node.Id, 0) << node.Code;
        ASSERT_TRUE(codes.insert(node.Code).second) << node.Code;
        ASSERT_TRUE(node.Level < 2 || stems.insert(node.ComponentIdStem).second) << node.Code;
    }
    EXPECT_EQ(CountEndCategories(tree), 40'000U);
}

TEST(CategoryTree, SpreadsFewCategoriesOverTheDisciplines)
{
    std::set<std::size_t> disciplines;
    for (const CategoryNode& node : MakeCategoryTree(Source(), 60)) {
        disciplines.insert(node.Discipline);
    }
    EXPECT_EQ(disciplines.size(), Source().Disciplines.size());
}

} // namespace
