#include "Records/ICategoryProperty.h"

#include "InUsedMemory.h"
#include "RecordLayout.h"
#include "Records/IParameterDefinition.h"

#include <gmock/gmock.h>

namespace {

using tarnnuq::ICategoryProperty;
using tarnnuq::IParameterDefinition;
using testing::ElementsAre;
using testing::Key;

std::shared_ptr<IParameterDefinition> DefinitionNamed(const std::wstring& name, const std::wstring& code)
{
    auto definition = std::make_shared<IParameterDefinition>();
    definition->Name = name;
    definition->Code = code;
    return definition;
}

void Store(ICategoryProperty& property, const std::shared_ptr<IParameterDefinition>& definition)
{
    property.ParameterDefinitions[definition->Name] = definition;
}

TEST(ICategoryPropertyTest, MembersStandInTheFixedOrder)
{
    const ICategoryProperty property;
    RecordLayout layout(property);
    layout.Next("CategoryId", property.CategoryId).Next("CategoryName", property.CategoryName);
    layout.Next("ParameterDefinitions", property.ParameterDefinitions).End();
}

TEST(ICategoryPropertyTest, DefaultsAreEmpty)
{
    const InUsedMemory<ICategoryProperty> made;
    const ICategoryProperty& property = *made;
    EXPECT_EQ(property.CategoryId, L"");
    EXPECT_EQ(property.CategoryName, L"");
    EXPECT_TRUE(property.ParameterDefinitions.empty());
}

TEST(ICategoryPropertyTest, OfTwoDefinitionsWithOneNameTheLaterStays)
{
    ICategoryProperty property;
    Store(property, DefinitionNamed(L"宽度", L"first"));
    Store(property, DefinitionNamed(L"宽度", L"second"));
    ASSERT_EQ(property.ParameterDefinitions.size(), 1u);
    EXPECT_EQ(property.ParameterDefinitions.at(L"宽度")->Code, L"second");
}

TEST(ICategoryPropertyTest, DefinitionsAreOrderedByName)
{
    ICategoryProperty property;
    for (const wchar_t* name : {L"b", L"A", L"a", L""}) {
        Store(property, DefinitionNamed(name, L"x"));
    }
    EXPECT_THAT(property.ParameterDefinitions,
        ElementsAre(Key(std::wstring(L"")), Key(std::wstring(L"A")), Key(std::wstring(L"a")), Key(std::wstring(L"b"))));
}

} // namespace
