#include "Records/IComponent.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

namespace {

using tarnnuq::IComponent;

TEST(IComponentTest, MembersStandInTheFixedOrder)
{
    const IComponent component;
    RecordLayout layout(component);
    layout.Next("Id", component.Id).Next("Name", component.Name).Next("CategoryId", component.CategoryId);
    layout.Next("CategoryCode", component.CategoryCode).Next("Thumbnail", component.Thumbnail).End();
}

TEST(IComponentTest, DefaultsAreEmpty)
{
    const InUsedMemory<IComponent> made;
    const IComponent& component = *made;
    EXPECT_EQ(component.Id, L"");
    EXPECT_EQ(component.Name, L"");
    EXPECT_EQ(component.CategoryId, L"");
    EXPECT_EQ(component.CategoryCode, L"");
    EXPECT_EQ(component.Thumbnail, L"");
}

} // namespace
