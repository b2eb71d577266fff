#include "Records/IParameter.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"
#include "Records/IParameterDefinition.h"

#include <type_traits>

namespace {

using tarnnuq::IParameter;
using tarnnuq::IParameterDefinition;

static_assert(std::is_same_v<decltype(IParameter::Definition), std::shared_ptr<IParameterDefinition>>);
static_assert(std::is_same_v<decltype(&IParameter::SetIsValueSpecified), void (IParameter::*)(bool)>);
static_assert(std::is_same_v<decltype(&IParameter::GetLogicStorageStr), std::wstring (*)(const bool&)>, "it is static");

TEST(IParameterTest, MembersStandInTheFixedOrder)
{
    const IParameter parameter;
    RecordLayout layout(parameter);
    layout.Next("Value", parameter.Value).Next("Definition", parameter.Definition);
    layout.Next("IsValueSpecified", parameter.IsValueSpecified).End();
}

TEST(IParameterTest, DefaultsAreNoValueAndNoDefinition)
{
    const InUsedMemory<IParameter> made;
    const IParameter& parameter = *made;
    EXPECT_EQ(parameter.Value, L"");
    EXPECT_EQ(parameter.Definition, nullptr);
    EXPECT_FALSE(parameter.IsValueSpecified);
}

TEST(IParameterTest, SetIsValueSpecifiedStoresTheFlagBothWays)
{
    IParameter parameter;
    parameter.SetIsValueSpecified(true);
    EXPECT_TRUE(parameter.IsValueSpecified);
    parameter.SetIsValueSpecified(false);
    EXPECT_FALSE(parameter.IsValueSpecified);
}

TEST(IParameterTest, YesNoValuesAreStoredAsWords)
{
    EXPECT_EQ(IParameter::GetLogicStorageStr(true), L"true");
    EXPECT_EQ(IParameter::GetLogicStorageStr(false), L"false");
}

TEST(IParameterTest, CopiesShareTheDefinition)
{
    IParameter parameter;
    parameter.Value = L"400";
    parameter.Definition = std::make_shared<IParameterDefinition>();
    const IParameter copy(parameter);
    EXPECT_EQ(copy.Value, L"400");
    EXPECT_EQ(copy.Definition, parameter.Definition);
}

} // namespace
