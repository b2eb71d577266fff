#include "Records/ProjectComponentExistingCheck.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <type_traits>

namespace {

using tarnnuq::ProjectComponentExistingCheck;

static_assert(std::is_same_v<decltype(ProjectComponentExistingCheck::Version), std::int32_t>);

TEST(ProjectComponentExistingCheckTest, MembersStandInTheFixedOrder)
{
    const ProjectComponentExistingCheck check;
    RecordLayout layout(check);
    layout.Next("Exist", check.Exist).Next("Version", check.Version).End();
}

TEST(ProjectComponentExistingCheckTest, DefaultIsAbsentInVersionZero)
{
    const InUsedMemory<ProjectComponentExistingCheck> made;
    const ProjectComponentExistingCheck& check = *made;
    EXPECT_FALSE(check.Exist);
    EXPECT_EQ(check.Version, 0);
}

} // namespace
