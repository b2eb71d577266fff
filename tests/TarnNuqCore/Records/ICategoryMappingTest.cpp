#include "Records/ICategoryMapping.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <type_traits>

namespace {

using tarnnuq::ICategoryMapping;

static_assert(std::is_same_v<decltype(ICategoryMapping::CategoryId), std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<ICategoryMapping::MajorType>, std::int32_t>);
static_assert(std::is_convertible_v<ICategoryMapping::MajorType, int>, "hosts use the majors as numbers");
static_assert(ICategoryMapping::MajorType::Unknown == -1 && ICategoryMapping::Unknown == -1);
static_assert(ICategoryMapping::MajorType::Plumbing == 0 && ICategoryMapping::Plumbing == 0);
static_assert(ICategoryMapping::MajorType::Hvac == 1 && ICategoryMapping::Hvac == 1);
static_assert(ICategoryMapping::MajorType::Electrical == 2 && ICategoryMapping::Electrical == 2);

TEST(ICategoryMappingTest, MembersStandInTheFixedOrder)
{
    const ICategoryMapping mapping;
    RecordLayout layout(mapping);
    layout.Next("CategoryId", mapping.CategoryId).Next("CategoryCode", mapping.CategoryCode);
    layout.Next("Names", mapping.Names).Next("Major", mapping.Major);
    layout.Next("ComponentEditorCategoryId", mapping.ComponentEditorCategoryId).End();
}

TEST(ICategoryMappingTest, DefaultsAreZeroAndEmpty)
{
    const InUsedMemory<ICategoryMapping> made;
    const ICategoryMapping& mapping = *made;
    EXPECT_EQ(mapping.CategoryId, 0);
    EXPECT_EQ(mapping.CategoryCode, L"");
    EXPECT_TRUE(mapping.Names.empty());
    EXPECT_EQ(mapping.Major, 0);
    EXPECT_EQ(mapping.ComponentEditorCategoryId, L"");
}

} // namespace
