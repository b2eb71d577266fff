#include "Records/IProjectComponent.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <type_traits>

namespace {

using tarnnuq::IComponent;
using tarnnuq::IProjectComponent;

static_assert(std::is_base_of_v<IComponent, IProjectComponent>);
static_assert(std::is_same_v<decltype(IProjectComponent::Version), std::int32_t>);
static_assert(std::is_same_v<decltype(IProjectComponent::Source), std::int32_t>);

TEST(IProjectComponentTest, OwnMembersFollowThoseOfTheBaseInTheFixedOrder)
{
    const IProjectComponent component;
    RecordLayout layout(component, sizeof(IComponent));
    layout.Next("Version", component.Version).Next("Source", component.Source);
    layout.Next("PublicComponentId", component.PublicComponentId).Next("Status", component.Status).End();
}

TEST(IProjectComponentTest, BaseStandsAtTheStart)
{
    const IProjectComponent component;
    const IComponent* const base = &component;
    EXPECT_EQ(static_cast<const void*>(base), static_cast<const void*>(&component));
}

TEST(IProjectComponentTest, DefaultsAreZeroAndEmpty)
{
    const InUsedMemory<IProjectComponent> made;
    const IProjectComponent& component = *made;
    EXPECT_EQ(component.Id, L"");
    EXPECT_EQ(component.Version, 0);
    EXPECT_EQ(component.Source, 0);
    EXPECT_EQ(component.PublicComponentId, L"");
    EXPECT_EQ(component.Status, L"");
}

TEST(IProjectComponentTest, CopyingCopiesTheMembersOfTheBaseToo)
{
    IProjectComponent component;
    component.Id = L"C-1";
    component.Thumbnail = L"url";
    component.Version = 2;
    component.Source = 3;
    component.PublicComponentId = L"P-1";
    component.Status = L"ok";
    const IProjectComponent copy(component);
    EXPECT_EQ(copy.Id, L"C-1");
    EXPECT_EQ(copy.Thumbnail, L"url");
    EXPECT_EQ(copy.Version, 2);
    EXPECT_EQ(copy.Source, 3);
    EXPECT_EQ(copy.PublicComponentId, L"P-1");
    EXPECT_EQ(copy.Status, L"ok");
}

} // namespace
