#include "Records/IParameterDefinition.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"

using tarnnuq::ICategoryProperty;
using tarnnuq::IParameterDefinition;
using testsupport::Describe;
using testsupport::FakeCategoryInfo;
using testsupport::FakePropertyInfo;
using testsupport::ServiceWarning;

namespace {

using Texts = std::vector<std::wstring>;
using Values = std::map<std::wstring, std::wstring>;

class CategoryPropertyTest : public testsupport::PropertyServiceFixture
{
protected:
    CategoryPropertyTest()
    {
        Service();
        host.logger.Clear();
        host.debugMessages.Clear();
    }

    std::shared_ptr<ICategoryProperty> Read(const std::wstring& code = L"c")
    {
        return Service().GetCategoryProperty(code);
    }

    /// The definition of this name; an empty one when there is none.
    IParameterDefinition Definition(const std::wstring& name)
    {
        const auto spProperty = Read();
        const auto found = spProperty->ParameterDefinitions.find(name);
        EXPECT_NE(found, spProperty->ParameterDefinitions.end()) << QString::fromStdWString(name).toStdString();
        return found == spProperty->ParameterDefinitions.end() ? IParameterDefinition() : *found->second;
    }

    Texts Names()
    {
        Texts names;
        const auto spProperty = Read();
        for (const auto& [name, spDefinition] : spProperty->ParameterDefinitions) {
            EXPECT_EQ(spDefinition->Name, name);
            names.push_back(name);
        }
        return names;
    }

    FakeCategoryInfo& category = library.MakeCategory(L"c");
};

IParameterDefinition ExpectedDefinition(const std::wstring& name)
{
    IParameterDefinition definition;
    definition.Code = L"code " + name;
    definition.GroupName = L"group " + name;
    definition.Id = L"id " + name;
    definition.IsStandard = true;
    definition.Name = name;
    definition.ValueType = L"String";
    definition.ParameterType = L"String";
    definition.ParameterDisplayType = L"Text";
    return definition;
}

} // namespace

TEST_F(CategoryPropertyTest, NamesItsCategory)
{
    const auto spProperty = Read();
    ASSERT_TRUE(spProperty);
    EXPECT_EQ(spProperty->CategoryId, L"id c");
    EXPECT_EQ(spProperty->CategoryName, L"name c");
    EXPECT_TRUE(spProperty->ParameterDefinitions.empty());
}

TEST_F(CategoryPropertyTest, OfAnUnknownCodeIsNull)
{
    for (const wchar_t* code : {L"", L"C", L"c ", L"unknown"}) {
        EXPECT_EQ(Read(code), nullptr);
    }
    testsupport::ExpectWarnings(host, {});
}

TEST_F(CategoryPropertyTest, OfAKnownCodeWithoutACategoryIsNull)
{
    host.categoryInfo.categoriesByCode[L"c"] = nullptr;
    EXPECT_EQ(Read(), nullptr);
    testsupport::ExpectWarnings(host, {});
}

TEST_F(CategoryPropertyTest, WithoutACategoryLibraryIsNullAndAWarning)
{
    host.Remove(&hostsdk::HostServices::categoryInfo);
    EXPECT_EQ(Read(), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetCategoryProperty", L"pUtil 或spCategoryProperty为空")});
}

TEST_F(CategoryPropertyTest, NeedsNoCategoryOfTheTree)
{
    EXPECT_EQ(Service().GetCategoryByCode(L"c"), nullptr);
    EXPECT_TRUE(Read());
}

TEST_F(CategoryPropertyTest, FillsADefinitionFromAPlainProperty)
{
    library.AddProperty(category, L"流量");
    EXPECT_EQ(Describe(Definition(L"流量")), Describe(ExpectedDefinition(L"流量")));
}

TEST_F(CategoryPropertyTest, FillsADefinitionFromARichProperty)
{
    FakePropertyInfo& info = library.AddProperty(category, L"rich");
    info.isEssential = true;
    info.isInput = false;
    info.code = L"";
    info.storageType = 4;
    info.displayType = 16;
    info.valueIds = {{L"a", 2}, {L"b", 1}};
    info.valueTexts = {{1, L"text of 1"}, {2, L"text of 2"}};
    IParameterDefinition expected = ExpectedDefinition(L"rich");
    expected.Code = L"";
    expected.IsStandard = false;
    expected.IsEssential = true;
    expected.IsOutputParameter = true;
    expected.ValueType = L"Enum";
    expected.ParameterType = L"Int";
    expected.ParameterDisplayType = L"ValueList";
    expected.Values = {{L"a", L"text of 2"}, {L"b", L"text of 1"}};
    EXPECT_EQ(Describe(Definition(L"rich")), Describe(expected));
}

TEST_F(CategoryPropertyTest, EachFlagComesFromItsOwnGetter)
{
    library.AddProperty(category, L"essential").isEssential = true;
    library.AddProperty(category, L"output").isInput = false;
    library.AddProperty(category, L"blank code").code = L" ";
    EXPECT_TRUE(Definition(L"essential").IsEssential);
    EXPECT_FALSE(Definition(L"essential").IsOutputParameter);
    EXPECT_TRUE(Definition(L"output").IsOutputParameter);
    EXPECT_FALSE(Definition(L"output").IsEssential);
    EXPECT_TRUE(Definition(L"blank code").IsStandard);
}

TEST_F(CategoryPropertyTest, LeavesInstanceParametersOutInSilence)
{
    library.AddProperty(category, L"type");
    FakePropertyInfo& instance = library.AddProperty(category, L"instance");
    instance.isInstance = true;
    instance.storageType = 99;
    EXPECT_EQ(Names(), (Texts{L"type"}));
    testsupport::ExpectWarnings(host, {});
}

TEST_F(CategoryPropertyTest, AnInstanceParameterReplacesNoTypeParameterOfItsName)
{
    library.AddProperty(category, L"p", 1);
    FakePropertyInfo& instance = library.AddProperty(category, L"other", 2);
    instance.isInstance = true;
    instance.name = L"p";
    EXPECT_EQ(Definition(L"p").Code, L"code p");
}

TEST_F(CategoryPropertyTest, LeavesNullPropertiesOutWithAWarningEach)
{
    category.properties[L"a"] = nullptr;
    library.AddProperty(category, L"p");
    category.properties[L"z"] = nullptr;
    EXPECT_EQ(Names(), (Texts{L"p"}));
    testsupport::ExpectWarnings(host, {ServiceWarning("GetCategoryProperty", L"pPropInfo为空"),
                                          ServiceWarning("GetCategoryProperty", L"pPropInfo为空")});
}

TEST_F(CategoryPropertyTest, OfNullsAloneHasNoDefinitions)
{
    category.properties[L"a"] = nullptr;
    EXPECT_EQ(Names(), Texts());
    EXPECT_EQ(Read()->CategoryId, L"id c");
}

TEST_F(CategoryPropertyTest, OfSeveralOfOneNameTheLastBySortIndexCounts)
{
    library.AddProperty(category, L"a", 3).name = L"same";
    library.AddProperty(category, L"b", 1).name = L"same";
    library.AddProperty(category, L"c", 2).name = L"same";
    EXPECT_EQ(Names(), (Texts{L"same"}));
    EXPECT_EQ(Definition(L"same").Code, L"code a");
}

TEST_F(CategoryPropertyTest, ANullPropertyDoesNotDisturbTheOrderOfTheOthers)
{
    for (int number = 0; number < 60; ++number) {
        library.AddProperty(category, std::to_wstring(100 + number), 60 - number).name = L"same";
        category.properties[std::to_wstring(100 + number) + L" null"] = nullptr;
    }
    EXPECT_EQ(Definition(L"same").Code, L"code 100");
}

TEST_F(CategoryPropertyTest, KeepsAPropertyWithoutAName)
{
    library.AddProperty(category, L"p").name = L"";
    EXPECT_EQ(Names(), (Texts{L""}));
}

TEST_F(CategoryPropertyTest, ADisplayNumberWithoutAWordIsAWarningAndNoObstacle)
{
    library.AddProperty(category, L"p").displayType = 18;
    EXPECT_EQ(Definition(L"p").ParameterDisplayType, L"Text");
    testsupport::ExpectWarnings(
        host, {testsupport::WarningOf("PropertySvcs/PropertyTyping.cpp",
                  "tarnnuq::GetStorageTypeAndDispTypeFromPropertyInfo", L"ParameterDisplayType 不合法")});
}

TEST_F(CategoryPropertyTest, AnIntegerWithoutValueTextsIsANumber)
{
    FakePropertyInfo& info = library.AddProperty(category, L"p");
    info.storageType = 4;
    info.valueIds = {{L"a", 1}};
    EXPECT_EQ(Definition(L"p").ValueType, L"Number");
    EXPECT_EQ(Definition(L"p").ParameterType, L"Int");
    EXPECT_EQ(Definition(L"p").Values, Values());
}

TEST_F(CategoryPropertyTest, LeavesValuesWithoutATextOut)
{
    FakePropertyInfo& info = library.AddProperty(category, L"p");
    info.valueIds = {{L"a", 1}, {L"b", 2}, {L"c", 3}, {L"", 4}};
    info.valueTexts = {{1, L"one"}, {3, L""}, {4, L"four"}, {5, L"five"}};
    EXPECT_EQ(Definition(L"p").Values, (Values{{L"", L"four"}, {L"a", L"one"}, {L"c", L""}}));
}

TEST_F(CategoryPropertyTest, OneTextServesEveryValueOfItsId)
{
    FakePropertyInfo& info = library.AddProperty(category, L"p");
    info.valueIds = {{L"a", 1}, {L"b", 1}, {L"c", -1}};
    info.valueTexts = {{1, L"a text of some length"}, {-1, L"minus one"}};
    EXPECT_EQ(Definition(L"p").Values,
        (Values{{L"a", L"a text of some length"}, {L"b", L"a text of some length"}, {L"c", L"minus one"}}));
}

TEST_F(CategoryPropertyTest, ReadsTheHostAfreshEachTime)
{
    library.AddProperty(category, L"p");
    const auto before = Read();
    before->ParameterDefinitions[L"p"]->Code = L"written";
    library.AddProperty(category, L"q");
    EXPECT_EQ(Names(), (Texts{L"p", L"q"}));
    EXPECT_EQ(Definition(L"p").Code, L"code p");
    EXPECT_EQ(before->ParameterDefinitions.size(), 1U);
}

TEST_F(CategoryPropertyTest, LogsAndSendsNothing)
{
    library.AddProperty(category, L"p");
    Read();
    EXPECT_TRUE(host.logger.Records().empty());
}
