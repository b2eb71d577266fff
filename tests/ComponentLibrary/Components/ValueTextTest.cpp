#include "Components/ValueText.h"

#include "Records/IParameterDefinition.h"

#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

tarnnuq::IParameter Parameter(const std::wstring& value)
{
    tarnnuq::IParameter parameter;
    parameter.Value = value;
    parameter.IsValueSpecified = true;
    parameter.Definition = std::make_shared<tarnnuq::IParameterDefinition>();
    parameter.Definition->Values = {{L"", L"nothing"}, {L"GALV", L"镀锌钢"}, {L"PVC", L""}};
    return parameter;
}

TEST(ValueText, IsTheTextOfTheChoice)
{
    EXPECT_EQ(ValueText(Parameter(L"GALV")), L"镀锌钢");
    EXPECT_EQ(ValueText(Parameter(L"galv")), L"galv") << "keys are compared with letter case";
    EXPECT_EQ(ValueText(Parameter(L"STEEL")), L"STEEL") << "a key that is not known";
    EXPECT_EQ(ValueText(Parameter(L"PVC")), L"PVC") << "a choice without a text";
    EXPECT_EQ(ValueText(Parameter(L"")), L"nothing");
}

TEST(ValueText, IsTheValueWithoutADefinition)
{
    tarnnuq::IParameter parameter = Parameter(L"GALV");
    parameter.Definition = nullptr;
    EXPECT_EQ(ValueText(parameter), L"GALV");
}

TEST(ValueText, IsEmptyWhereNoValueIsGiven)
{
    tarnnuq::IParameter parameter = Parameter(L"");
    parameter.IsValueSpecified = false;
    EXPECT_EQ(ValueText(parameter), L"");
}

} // namespace
} // namespace componentlibrary
