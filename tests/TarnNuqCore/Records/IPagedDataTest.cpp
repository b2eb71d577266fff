#include "Records/IPagedData.h"

#include "RecordLayout.h"
#include "Records/ILegend.h"
#include "Records/IProjectComponent.h"

#include <memory>
#include <type_traits>
#include <vector>

namespace {

using tarnnuq::ILegend;
using tarnnuq::IPagedData;
using tarnnuq::IProjectComponent;
using LegendPage = IPagedData<std::vector<std::shared_ptr<ILegend>>>;
using ComponentPage = IPagedData<std::vector<std::shared_ptr<IProjectComponent>>>;

static_assert(std::has_virtual_destructor_v<LegendPage> && std::has_virtual_destructor_v<ComponentPage>);
static_assert(std::is_same_v<decltype(LegendPage::TotalCount), std::int32_t>);
static_assert(std::is_same_v<decltype(LegendPage::List), std::vector<std::shared_ptr<ILegend>>>);

template <typename Page>
class IPagedDataTest : public testing::Test
{
};

using Pages = testing::Types<LegendPage, ComponentPage>;
TYPED_TEST_SUITE(IPagedDataTest, Pages);

TYPED_TEST(IPagedDataTest, MembersStandInTheFixedOrder)
{
    const TypeParam page;
    RecordLayout layout(page);
    layout.Next("List", page.List).Next("TotalCount", page.TotalCount).End();
}

TYPED_TEST(IPagedDataTest, DefaultIsAnEmptyPage)
{
    const TypeParam page;
    EXPECT_TRUE(page.List.empty());
    EXPECT_EQ(page.TotalCount, 0);
}

TYPED_TEST(IPagedDataTest, CopyingSharesTheRecordsAndKeepsTheSource)
{
    using Record = typename decltype(TypeParam::List)::value_type::element_type;
    TypeParam page;
    page.List.push_back(std::make_shared<Record>());
    page.TotalCount = 7;
    TypeParam assigned;
    assigned = page;
    for (const TypeParam& copy : {TypeParam(page), assigned}) {
        EXPECT_EQ(copy.List, page.List);
        EXPECT_EQ(copy.TotalCount, 7);
    }
    EXPECT_EQ(page.List.size(), 1u);
}

} // namespace
