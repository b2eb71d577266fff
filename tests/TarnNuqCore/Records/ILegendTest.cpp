#include "Records/ILegend.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <limits>
#include <type_traits>

namespace {

using tarnnuq::ILegend;

static_assert(std::is_same_v<decltype(ILegend::Id), std::int64_t>);
static_assert(std::is_same_v<std::underlying_type_t<ILegend::LegendType>, std::int32_t>);
static_assert(std::is_convertible_v<ILegend::LegendType, int>, "hosts use the views as numbers");
static_assert(ILegend::LegendType::Unknown == 0 && ILegend::Unknown == 0);
static_assert(ILegend::LegendType::Plan == 1 && ILegend::Plan == 1);
static_assert(ILegend::LegendType::Elevation == 2 && ILegend::Elevation == 2);
static_assert(ILegend::LegendType::Profile == 3 && ILegend::Profile == 3);
static_assert(
    std::is_same_v<decltype(&ILegend::GetLegendTypeInDigitalModule), int (*)(ILegend::LegendType)>, "it is static");

TEST(ILegendTest, MembersStandInTheFixedOrder)
{
    const ILegend legend;
    RecordLayout layout(legend);
    layout.Next("Id", legend.Id).Next("Name", legend.Name).Next("Type", legend.Type);
    layout.Next("Thumbnail", legend.Thumbnail).Next("StandardSource", legend.StandardSource).End();
}

TEST(ILegendTest, DefaultsAreUnknownZeroAndEmpty)
{
    const InUsedMemory<ILegend> made;
    const ILegend& legend = *made;
    EXPECT_EQ(legend.Id, 0);
    EXPECT_EQ(legend.Name, L"");
    EXPECT_EQ(legend.Type, ILegend::Unknown);
    EXPECT_EQ(legend.Thumbnail, L"");
    EXPECT_EQ(legend.StandardSource, L"");
}

TEST(ILegendTest, IdHoldsEvery64BitNumber)
{
    ILegend legend;
    legend.Id = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(legend.Id, std::numeric_limits<std::int64_t>::min());
}

TEST(ILegendTest, DigitalModuleCountsTheViewsFromZero)
{
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(ILegend::Plan), 0);
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(ILegend::Elevation), 1);
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(ILegend::Profile), 2);
}

TEST(ILegendTest, DigitalModuleKnowsNoOtherView)
{
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(ILegend::Unknown), -1);
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(static_cast<ILegend::LegendType>(4)), -1);
    EXPECT_EQ(ILegend::GetLegendTypeInDigitalModule(static_cast<ILegend::LegendType>(-1)), -1);
}

} // namespace
