#include "Categories/CategoryTree.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace componentlibrary {
namespace {

using tarnnuq::ICategory;

struct Row
{
    int id;
    int parentId;
    double weight = 0;
};

CategoryTree TreeOf(const std::vector<Row>& rows)
{
    CategoryTree::Categories categories;
    for (const Row& row : rows) {
        auto category = std::make_shared<ICategory>();
        category->Id = row.id;
        category->ParentId = row.parentId;
        category->Weight = row.weight;
        categories.push_back(std::move(category));
    }
    return CategoryTree(std::move(categories));
}

/// The ids depth-first, each with its depth: "1 2/1 3/2".
std::string Shape(const CategoryTree& tree)
{
    std::string shape;
    for (const auto node : tree.DepthFirst()) {
        if (!shape.empty())
            shape += ' ';
        shape += std::to_string(tree.Category(node).Id);
        if (tree.Depth(node) > 0)
            shape += "/" + std::to_string(tree.Depth(node));
    }
    return shape;
}

TEST(CategoryTree, PutsChildrenBelowTheirParentsWhateverTheOrderOfTheList)
{
    EXPECT_EQ(Shape(TreeOf({{4, 2}, {1, 0}, {2, 1}, {3, 0}, {5, 3}})), "1 2/1 4/2 3 5/1");
}

TEST(CategoryTree, OrdersSiblingsByWeightAndEqualWeightsByTheList)
{
    EXPECT_EQ(Shape(TreeOf({{1, 0, 3}, {2, 0, 1}, {3, 0, 2}, {4, 0, 2}, {5, 1, 9}, {6, 1, -1}})), "2 3 4 1 6/1 5/1");
}

TEST(CategoryTree, MakesARootOfACategoryWithoutItsParent)
{
    EXPECT_EQ(Shape(TreeOf({{1, 0}, {2, 99}, {3, 2}})), "1 2 3/1");
}

TEST(CategoryTree, KeepsTheFirstOfSeveralCategoriesWithOneId)
{
    EXPECT_EQ(Shape(TreeOf({{1, 0}, {2, 1}, {2, 0}, {3, 2}})), "1 2/1 3/2");
}

TEST(CategoryTree, CutsACycleAtItsFirstMember)
{
    EXPECT_EQ(Shape(TreeOf({{5, 0}, {1, 3}, {2, 1}, {3, 2}, {4, 3}})), "5 1 2/1 3/2 4/3");
    EXPECT_EQ(Shape(TreeOf({{4, 2}, {2, 3}, {3, 2}})), "2 4/1 3/1");
    EXPECT_EQ(Shape(TreeOf({{1, 1}})), "1");
}

/// The ids that are left when each row is "id, parent, count".
std::string WithComponents(const std::vector<std::array<int, 3>>& rows)
{
    CategoryTree::Categories categories;
    for (const auto& [id, parentId, count] : rows) {
        categories.push_back(std::make_shared<ICategory>());
        categories.back()->Id = id;
        categories.back()->ParentId = parentId;
        categories.back()->Count = count;
    }
    std::string ids;
    for (const auto& category : CategoryTree(categories).WithComponents())
        ids += (ids.empty() ? "" : " ") + std::to_string(category->Id);
    return ids;
}

TEST(CategoryTree, KnowsWhatASearchHasFound)
{
    EXPECT_EQ(WithComponents({{4, 2, 1}, {1, 0, 1}, {2, 1, 1}, {3, 1, 0}, {5, 0, 0}, {6, 5, 0}}), "4 1 2");
    EXPECT_EQ(WithComponents({{1, 0, 0}, {2, 1, 0}, {3, 2, 7}, {4, 2, 0}}), "1 2 3") << "above whatever they count";
    EXPECT_EQ(WithComponents({{1, 0, -3}, {2, 0, 0}}), "1") << "a wrong count is shown, not hidden";
    EXPECT_EQ(WithComponents({{1, 3, 0}, {2, 1, 1}, {3, 2, 0}}), "1 2") << "a cycle ends at its first member";
    EXPECT_EQ(WithComponents({{1, 0, 0}, {2, 1, 0}}), "");
    EXPECT_EQ(WithComponents({}), "");
}

TEST(CategoryTree, StaysQuickOnIdsThatWereChosen)
{
    // Multiples of a prime that hash tables have as a size all fall into one place of it.
    CategoryTree::Categories categories;
    for (int number = 1; number <= 40000; ++number) {
        categories.push_back(std::make_shared<ICategory>());
        categories.back()->Id = number * 42043 % 2147483629;
        categories.back()->ParentId = (number - 1) * 42043 % 2147483629;
        categories.back()->Count = number == 40000 ? 1 : 0;
    }
    const auto start = std::chrono::steady_clock::now();
    const CategoryTree tree(categories);
    EXPECT_EQ(tree.WithComponents().size(), 40000U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(CategoryTree, LeavesNullRecordsOut)
{
    CategoryTree::Categories categories = {nullptr, std::make_shared<ICategory>(), nullptr};
    EXPECT_EQ(CategoryTree(categories).Size(), 1);
    EXPECT_EQ(CategoryTree(CategoryTree::Categories()).DepthFirst().size(), 0u);
    EXPECT_EQ(CategoryTree().ChildCount(CategoryTree::kNone), 0);
}

TEST(CategoryTree, AnswersLikeAModel)
{
    const CategoryTree tree = TreeOf({{1, 0, 1}, {2, 0, 2}, {3, 2, 2}, {4, 2, 1}});
    ASSERT_EQ(tree.ChildCount(CategoryTree::kNone), 2);
    const auto second = tree.Child(CategoryTree::kNone, 1);
    EXPECT_EQ(tree.Category(second).Id, 2);
    ASSERT_EQ(tree.ChildCount(second), 2);
    const auto child = tree.Child(second, 0);
    EXPECT_EQ(tree.Category(child).Id, 4);
    EXPECT_EQ(tree.Parent(child), second);
    EXPECT_EQ(tree.Parent(second), CategoryTree::kNone);
    EXPECT_EQ(tree.Place(child), 0);
    EXPECT_EQ(tree.Place(tree.Child(second, 1)), 1);
}

TEST(CategoryTree, HoldsEachCategoryOnceForRandomParents)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        const int size = static_cast<int>(random() % 40);
        std::vector<Row> rows;
        for (int id = 1; id <= size; ++id)
            rows.push_back({id, static_cast<int>(random() % 45), static_cast<double>(random() % 3)});
        const CategoryTree tree = TreeOf(rows);
        std::set<int> seen;
        for (const auto node : tree.DepthFirst()) {
            seen.insert(tree.Category(node).Id);
            const auto parent = tree.Parent(node);
            EXPECT_EQ(tree.Child(parent, tree.Place(node)), node);
            if (parent != CategoryTree::kNone) {
                EXPECT_EQ(tree.Category(parent).Id, tree.Category(node).ParentId);
            }
        }
        EXPECT_EQ(static_cast<int>(seen.size()), size);
        EXPECT_EQ(static_cast<int>(tree.DepthFirst().size()), size);
    }
}

TEST(CategoryTree, TakesAHundredThousandChildrenAndAChainAsLong)
{
    std::vector<Row> wide = {{1, 0}};
    std::vector<Row> deep = {{1, 0}};
    for (int id = 2; id <= 100001; ++id) {
        wide.push_back({id, 1, static_cast<double>(-id)});
        deep.push_back({id, id - 1});
    }
    const auto start = std::chrono::steady_clock::now();
    const CategoryTree wideTree = TreeOf(wide);
    EXPECT_EQ(wideTree.Category(wideTree.Child(0, 0)).Id, 100001);
    const CategoryTree deepTree = TreeOf(deep);
    EXPECT_EQ(deepTree.Depth(deepTree.DepthFirst().back()), 100000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << "quadratic work takes minutes";
}

} // namespace
} // namespace componentlibrary
