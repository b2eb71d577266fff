// The property set of any category beside the same set worked out in the plainest way, and what it asks the host.
#include "Records/IParameterDefinition.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"

#include <algorithm>
#include <numeric>
#include <random>

using tarnnuq::ICategoryProperty;
using tarnnuq::IParameterDefinition;
using testsupport::Describe;
using testsupport::FakeCategoryInfo;
using testsupport::FakePropertyInfo;

namespace {

class RandomProperties
{
public:
    RandomProperties(std::mt19937& random, testsupport::HostLibrary& library, FakeCategoryInfo& category)
        : m_random(random)
    {
        const int count = Below(30);
        std::vector<int> indexes(static_cast<std::size_t>(count));
        std::iota(indexes.begin(), indexes.end(), -10);
        std::shuffle(indexes.begin(), indexes.end(), random);
        for (int number = 0; number < count; ++number) {
            FakePropertyInfo& info = library.AddProperty(
                category, L"p" + std::to_wstring(number), indexes[static_cast<std::size_t>(number)]);
            SetRandomly(info);
            inSortOrder.push_back(&info);
            if (Below(6) == 0) {
                category.properties[L"null " + std::to_wstring(number)] = nullptr;
            }
        }
        std::sort(inSortOrder.begin(), inSortOrder.end(),
            [](const auto* a, const auto* b) { return a->sortIndex < b->sortIndex; });
    }

    std::vector<const FakePropertyInfo*> inSortOrder;

private:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    void SetRandomly(FakePropertyInfo& info)
    {
        info.name = L"name " + std::to_wstring(Below(20));
        info.code = Below(4) == 0 ? L"" : info.code;
        info.isInstance = Below(4) == 0;
        info.isEssential = Below(2) == 0;
        info.isInput = Below(2) == 0;
        info.storageType = static_cast<std::int16_t>(Below(18) - 1);
        info.displayType = static_cast<std::int16_t>(Below(22) - 1);
        for (int left = Below(5); left > 0; --left) {
            info.valueIds[L"value " + std::to_wstring(Below(5))] = Below(4);
            info.valueTexts[Below(4)] = L"text " + std::to_wstring(left);
        }
    }

    std::mt19937& m_random;
};

using Words = std::map<int, std::wstring>;

const Words ParameterTypes{{0, L"Invalid"}, {1, L"None"}, {2, L"Custom"}, {3, L"Bool"}, {4, L"Int"}, {5, L"Double"},
    {7, L"Coordinates"}, {8, L"ElementId"}, {9, L"BuildingStorey"}, {10, L"Color"}, {11, L"StandardCodeReference"},
    {12, L"Geometry"}, {13, L"Guid"}, {14, L"Count"}};
const Words DisplayTypes{{0, L"Invalid"}, {1, L"FollowUnitType"}, {2, L"NoDisplay"}, {3, L"Custom"}, {4, L"Length"},
    {5, L"Area"}, {6, L"Volume"}, {7, L"Angle"}, {8, L"Slope"}, {9, L"Number"}, {11, L"Geometry"}, {12, L"Density"},
    {13, L"YesOrNo"}, {14, L"Float"}, {15, L"Material"}, {16, L"ValueList"}, {17, L"StandardCodeReference"},
    {19, L"Count"}};

std::wstring WordOf(int number, const Words& words, const wchar_t* otherwise)
{
    const auto word = words.find(number);
    return word == words.end() ? otherwise : word->second;
}

std::wstring PlainValueType(const FakePropertyInfo& info)
{
    const std::wstring integer = info.valueTexts.empty() ? L"Number" : L"Enum";
    return WordOf(info.storageType, {{3, L"Logic"}, {4, integer}, {5, L"Number"}}, L"String");
}

IParameterDefinition PlainDefinition(const FakePropertyInfo& info)
{
    IParameterDefinition definition;
    definition.Code = info.code;
    definition.GroupName = info.groupName;
    definition.Id = info.id;
    definition.IsEssential = info.isEssential;
    definition.IsOutputParameter = !info.isInput;
    definition.IsStandard = info.code.length() > 0;
    definition.Name = info.name;
    definition.ValueType = PlainValueType(info);
    definition.ParameterType = WordOf(info.storageType, ParameterTypes, L"String");
    definition.ParameterDisplayType = WordOf(info.displayType, DisplayTypes, L"Text");
    for (const auto& [text, id] : info.valueIds) {
        if (info.valueTexts.count(id) == 1) {
            definition.Values[text] = info.valueTexts.at(id);
        }
    }
    return definition;
}

ICategoryProperty PlainSet(const FakeCategoryInfo& category, const RandomProperties& properties)
{
    ICategoryProperty set;
    set.CategoryId = category.id;
    set.CategoryName = category.name;
    for (const FakePropertyInfo* info : properties.inSortOrder) {
        if (!info->isInstance) {
            set.ParameterDefinitions[info->name] = std::make_shared<IParameterDefinition>(PlainDefinition(*info));
        }
    }
    return set;
}

std::size_t PlainWarningCount(const FakeCategoryInfo& category, const RandomProperties& properties)
{
    auto warnings = static_cast<std::size_t>(std::count_if(category.properties.begin(), category.properties.end(),
        [](const auto& entry) { return entry.second == nullptr; }));
    for (const FakePropertyInfo* info : properties.inSortOrder) {
        const bool badStorage = info->storageType < 0 || info->storageType > 14;
        const bool badDisplay = info->displayType < 0 || info->displayType > 19 || info->displayType == 18;
        warnings += info->isInstance ? 0U : (badStorage ? 1U : 0U) + (badDisplay ? 1U : 0U);
    }
    return warnings;
}

using CategoryPropertyRulesTest = testsupport::PropertyServiceFixture;

} // namespace

TEST_F(CategoryPropertyRulesTest, AnyCategoryGivesTheSetOfTheReference)
{
    std::mt19937 random(20220125);
    Service();
    for (int round = 0; round < 1000; ++round) {
        FakeCategoryInfo& category = library.MakeCategory(std::to_wstring(round));
        const RandomProperties properties(random, library, category);
        host.debugMessages.Clear();
        const auto spProperty = Service().GetCategoryProperty(category.code);
        ASSERT_TRUE(spProperty);
        ASSERT_EQ(Describe(*spProperty), Describe(PlainSet(category, properties))) << "round " << round;
        ASSERT_EQ(host.debugMessages.Warnings().size(), PlainWarningCount(category, properties)) << "round " << round;
    }
}
