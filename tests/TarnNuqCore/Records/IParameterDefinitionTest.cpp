#include "Records/IParameterDefinition.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"

#include <type_traits>

namespace {

using tarnnuq::IParameterDefinition;

static_assert(std::is_same_v<decltype(IParameterDefinition::Values), std::map<std::wstring, std::wstring>>);

TEST(IParameterDefinitionTest, MembersStandInTheFixedOrder)
{
    const IParameterDefinition definition;
    RecordLayout layout(definition);
    layout.Next("Code", definition.Code).Next("Formula", definition.Formula).Next("GroupName", definition.GroupName);
    layout.Next("Id", definition.Id).Next("IsDriveParameter", definition.IsDriveParameter);
    layout.Next("IsEssential", definition.IsEssential).Next("IsGeometry", definition.IsGeometry);
    layout.Next("IsInstance", definition.IsInstance).Next("IsOutputParameter", definition.IsOutputParameter);
    layout.Next("IsStandard", definition.IsStandard).Next("Name", definition.Name);
    layout.Next("ParameterDisplayType", definition.ParameterDisplayType);
    layout.Next("ParameterType", definition.ParameterType).Next("Unit", definition.Unit);
    layout.Next("UnitCode", definition.UnitCode).Next("ValueType", definition.ValueType);
    layout.Next("Values", definition.Values).Next("IsBuildIn", definition.IsBuildIn);
    layout.Next("IsShared", definition.IsShared).Next("IsFromFile", definition.IsFromFile).End();
}

TEST(IParameterDefinitionTest, FlagsAreConsecutiveBytes)
{
    const IParameterDefinition definition;
    const bool* const first = &definition.IsDriveParameter;
    EXPECT_EQ(sizeof(bool), 1u);
    EXPECT_EQ(&definition.IsEssential, first + 1);
    EXPECT_EQ(&definition.IsGeometry, first + 2);
    EXPECT_EQ(&definition.IsInstance, first + 3);
    EXPECT_EQ(&definition.IsOutputParameter, first + 4);
    EXPECT_EQ(&definition.IsStandard, first + 5);
    EXPECT_EQ(&definition.IsShared, &definition.IsBuildIn + 1);
    EXPECT_EQ(&definition.IsFromFile, &definition.IsBuildIn + 2);
}

TEST(IParameterDefinitionTest, DefaultTextsAndValuesAreEmpty)
{
    const InUsedMemory<IParameterDefinition> made;
    const IParameterDefinition& definition = *made;
    for (const std::wstring* text : {&definition.Code, &definition.Formula, &definition.GroupName, &definition.Id,
             &definition.Name, &definition.ParameterDisplayType, &definition.ParameterType, &definition.Unit,
             &definition.UnitCode, &definition.ValueType}) {
        EXPECT_EQ(*text, L"");
    }
    EXPECT_TRUE(definition.Values.empty());
}

TEST(IParameterDefinitionTest, DefaultFlagsAreOff)
{
    const InUsedMemory<IParameterDefinition> made;
    const IParameterDefinition& definition = *made;
    for (const bool flag : {definition.IsDriveParameter, definition.IsEssential, definition.IsGeometry,
             definition.IsInstance, definition.IsOutputParameter, definition.IsStandard, definition.IsBuildIn,
             definition.IsShared, definition.IsFromFile}) {
        EXPECT_FALSE(flag);
    }
}

} // namespace
