#include "Records/ISpecification.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"
#include "Records/IParameter.h"

#include <gmock/gmock.h>

namespace {

using tarnnuq::IParameter;
using tarnnuq::ISpecification;
using testing::ElementsAre;
using testing::Key;

TEST(ISpecificationTest, MembersStandInTheFixedOrder)
{
    const ISpecification specification;
    RecordLayout layout(specification);
    layout.Next("Name", specification.Name).Next("Parameters", specification.Parameters).End();
}

TEST(ISpecificationTest, DefaultsAreEmpty)
{
    const InUsedMemory<ISpecification> made;
    const ISpecification& specification = *made;
    EXPECT_EQ(specification.Name, L"");
    EXPECT_TRUE(specification.Parameters.empty());
}

TEST(ISpecificationTest, ParametersAreOrderedByNameAndTheLaterOfOneNameStays)
{
    ISpecification specification;
    const auto later = std::make_shared<IParameter>();
    specification.Parameters[L"b"] = std::make_shared<IParameter>();
    specification.Parameters[L"a"] = std::make_shared<IParameter>();
    specification.Parameters[L"b"] = later;
    EXPECT_THAT(specification.Parameters, ElementsAre(Key(std::wstring(L"a")), Key(std::wstring(L"b"))));
    EXPECT_EQ(specification.Parameters.at(L"b"), later);
}

} // namespace
