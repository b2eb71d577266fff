#include "Records/ICategory.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <type_traits>

namespace {

using tarnnuq::ICategory;

static_assert(std::is_same_v<decltype(ICategory::Id), std::int32_t>);
static_assert(std::is_same_v<decltype(ICategory::ParentId), std::int32_t>);
static_assert(std::is_same_v<decltype(ICategory::Weight), double>);
static_assert(std::is_same_v<decltype(ICategory::Count), std::int32_t>);
static_assert(std::is_same_v<decltype(ICategory::NamePath), std::vector<std::wstring>>);
static_assert(std::is_same_v<decltype(ICategory::IsLeaf), bool>);
static_assert(std::is_same_v<decltype(&ICategory::SetIsLeaf), void (ICategory::*)(const bool&)>);

ICategory FullCategory()
{
    ICategory category;
    category.Id = 1;
    category.IdText = L"2";
    category.Name = L"风管";
    category.ParentId = 3;
    category.ParentIdText = L"4";
    category.Weight = 5.5;
    category.Count = 6;
    category.Code = L"7";
    category.ParentCode = L"8";
    category.NamePath = {L"暖通", L"风管"};
    category.IsLeaf = true;
    return category;
}

void ExpectFullCategory(const ICategory& category)
{
    EXPECT_EQ(category.Id, 1);
    EXPECT_EQ(category.IdText, L"2");
    EXPECT_EQ(category.Name, L"风管");
    EXPECT_EQ(category.ParentId, 3);
    EXPECT_EQ(category.ParentIdText, L"4");
    EXPECT_EQ(category.Weight, 5.5);
    EXPECT_EQ(category.Count, 6);
    EXPECT_EQ(category.Code, L"7");
    EXPECT_EQ(category.ParentCode, L"8");
    EXPECT_EQ(category.NamePath, (std::vector<std::wstring>{L"暖通", L"风管"}));
    EXPECT_TRUE(category.IsLeaf);
}

TEST(ICategoryTest, MembersStandInTheFixedOrder)
{
    const ICategory category;
    RecordLayout layout(category);
    layout.Next("Id", category.Id).Next("IdText", category.IdText).Next("Name", category.Name);
    layout.Next("ParentId", category.ParentId).Next("ParentIdText", category.ParentIdText);
    layout.Next("Weight", category.Weight).Next("Count", category.Count).Next("Code", category.Code);
    layout.Next("ParentCode", category.ParentCode).Next("NamePath", category.NamePath);
    layout.Next("IsLeaf", category.IsLeaf).End();
}

TEST(ICategoryTest, DefaultsAreZeroEmptyAndNoLeaf)
{
    const InUsedMemory<ICategory> made;
    const ICategory& category = *made;
    EXPECT_EQ(category.Id, 0);
    EXPECT_EQ(category.IdText, L"");
    EXPECT_EQ(category.Name, L"");
    EXPECT_EQ(category.ParentId, 0);
    EXPECT_EQ(category.ParentIdText, L"");
    EXPECT_EQ(category.Weight, 0.0);
    EXPECT_EQ(category.Count, 0);
    EXPECT_EQ(category.Code, L"");
    EXPECT_EQ(category.ParentCode, L"");
    EXPECT_TRUE(category.NamePath.empty());
    EXPECT_FALSE(category.IsLeaf);
}

TEST(ICategoryTest, CopyConstructionCopiesEveryMember)
{
    const ICategory category = FullCategory();
    const ICategory copy(category);
    ExpectFullCategory(copy);
    ExpectFullCategory(category);
}

TEST(ICategoryTest, CopyAssignmentReplacesEveryMember)
{
    const ICategory category = FullCategory();
    ICategory copy;
    copy.NamePath = {L"old", L"path", L"here"};
    EXPECT_EQ(&(copy = category), &copy);
    ExpectFullCategory(copy);
    ExpectFullCategory(category);
}

TEST(ICategoryTest, AssignmentToItselfChangesNothing)
{
    ICategory category = FullCategory();
    const ICategory& same = category;
    category = same;
    ExpectFullCategory(category);
}

TEST(ICategoryTest, CopiesAreIndependent)
{
    const ICategory category = FullCategory();
    ICategory copy(category);
    copy.Name = L"other";
    copy.NamePath.clear();
    copy.SetIsLeaf(false);
    ExpectFullCategory(category);
}

TEST(ICategoryTest, SetIsLeafStoresTheFlagBothWays)
{
    ICategory category;
    category.SetIsLeaf(true);
    EXPECT_TRUE(category.IsLeaf);
    category.SetIsLeaf(false);
    EXPECT_FALSE(category.IsLeaf);
}

} // namespace
