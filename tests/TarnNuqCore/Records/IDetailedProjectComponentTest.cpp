#include "Records/IDetailedProjectComponent.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <gmock/gmock.h>
#include <type_traits>

namespace {

using tarnnuq::IDetailedProjectComponent;
using tarnnuq::IProjectComponent;
using testing::ElementsAre;
using testing::Key;

static_assert(std::is_base_of_v<IProjectComponent, IDetailedProjectComponent>);

TEST(IDetailedProjectComponentTest, OwnMembersFollowThoseOfTheBaseInTheFixedOrder)
{
    const IDetailedProjectComponent component;
    RecordLayout layout(component, sizeof(IProjectComponent));
    layout.Next("FamilyTypeNames", component.FamilyTypeNames).Next("Thumbnails", component.Thumbnails).End();
}

TEST(IDetailedProjectComponentTest, DefaultsAreZeroAndEmpty)
{
    const InUsedMemory<IDetailedProjectComponent> made;
    const IDetailedProjectComponent& component = *made;
    EXPECT_EQ(component.Version, 0);
    EXPECT_EQ(component.Status, L"");
    EXPECT_TRUE(component.FamilyTypeNames.empty());
    EXPECT_TRUE(component.Thumbnails.empty());
}

TEST(IDetailedProjectComponentTest, SizesAreOrderedAsText)
{
    IDetailedProjectComponent component;
    for (const wchar_t* size : {L"64", L"128", L"-1"}) {
        component.Thumbnails[size] = {};
    }
    EXPECT_THAT(component.Thumbnails,
        ElementsAre(Key(std::wstring(L"-1")), Key(std::wstring(L"128")), Key(std::wstring(L"64"))));
}

} // namespace
