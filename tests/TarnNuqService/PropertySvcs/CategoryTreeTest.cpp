#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"

using tarnnuq::ICategory;
using testsupport::Describe;
using testsupport::FakeCategoryInfo;
using testsupport::FakeDisciplineInfo;
using testsupport::ServiceWarning;

namespace {

using Texts = std::vector<std::wstring>;

class CategoryTreeTest : public testsupport::PropertyServiceFixture
{
protected:
    /// Two disciplines, of which the second in key order comes first: "w" with a childless category and one of two end
    /// categories, and "a" without categories.
    void FillTwoDisciplines()
    {
        library.AddDiscipline(L"a", 2);
        FakeDisciplineInfo& water = library.AddDiscipline(L"w", 1);
        library.AddCategory(water, L"w1", 20);
        FakeCategoryInfo& valves = library.AddCategory(water, L"w2", 10);
        library.AddEndCategory(valves, L"w2a", 5);
        library.AddEndCategory(valves, L"w2b", 4);
    }

    void ExpectInitWarnings(const std::vector<const wchar_t*>& messages)
    {
        std::vector<testsupport::DebugWarning> warnings;
        for (const wchar_t* message : messages) {
            warnings.push_back(ServiceWarning("Init", message));
        }
        testsupport::ExpectWarnings(host, warnings);
    }
};

ICategory Record(const std::wstring& code, const std::wstring& parentCode, const Texts& namePath, bool isLeaf)
{
    ICategory category;
    category.IdText = L"id " + code;
    category.Name = L"name " + code;
    category.Code = code;
    category.ParentCode = parentCode;
    category.ParentIdText = parentCode == L"0" ? L"0" : L"id " + parentCode;
    category.NamePath = namePath;
    category.SetIsLeaf(isLeaf);
    return category;
}

ICategory Root()
{
    ICategory root;
    root.IdText = L"0";
    root.Name = L"全部";
    root.Code = L"0";
    return root;
}

} // namespace

TEST_F(CategoryTreeTest, WithoutACategoryLibraryIsTheRootAlone)
{
    host.Remove(&hostsdk::HostServices::categoryInfo);
    const auto categories = Service().GetCategories();
    ASSERT_EQ(categories.size(), 1U);
    EXPECT_EQ(Describe(*categories.front()), Describe(Root()));
    ExpectInitWarnings({L"pUtil为空"});
}

TEST_F(CategoryTreeTest, WithoutDisciplinesIsTheRootAlone)
{
    EXPECT_EQ(Codes(), (Texts{L"0"}));
    ExpectInitWarnings({});
}

TEST_F(CategoryTreeTest, WhoseDisciplinesCannotBeReadIsTheRootAlone)
{
    FillTwoDisciplines();
    host.categoryInfo.succeeds = false;
    EXPECT_EQ(Codes(), (Texts{L"0"}));
    EXPECT_TRUE(Access().LeavesOfHost().empty());
    ExpectInitWarnings({});
}

TEST_F(CategoryTreeTest, StandsDepthFirstEachLevelBySortIndex)
{
    FillTwoDisciplines();
    EXPECT_EQ(Codes(), (Texts{L"0", L"w", L"w2", L"w2b", L"w2a", L"w1", L"a"}));
}

TEST_F(CategoryTreeTest, FillsEveryRecordByItsLevel)
{
    FillTwoDisciplines();
    EXPECT_EQ(Describe(*Category(L"0")), Describe(Root()));
    EXPECT_EQ(Describe(*Category(L"w")), Describe(Record(L"w", L"0", {L"全部", L"name w"}, false)));
    EXPECT_EQ(Describe(*Category(L"w1")), Describe(Record(L"w1", L"w", {L"name w", L"name w1"}, true)));
    EXPECT_EQ(Describe(*Category(L"w2")), Describe(Record(L"w2", L"w", {L"name w", L"name w2"}, false)));
    EXPECT_EQ(Describe(*Category(L"w2a")), Describe(Record(L"w2a", L"w2", {L"name w", L"name w2", L"name w2a"}, true)));
    EXPECT_EQ(Describe(*Category(L"a")), Describe(Record(L"a", L"0", {L"全部", L"name a"}, false)));
    ExpectInitWarnings({});
}

TEST_F(CategoryTreeTest, SortsByNegativeAndLargestIndexesToo)
{
    for (const int sortIndex : {2147483647, -2147483647 - 1, 0, -1, 1}) {
        library.AddDiscipline(std::to_wstring(sortIndex), sortIndex);
    }
    EXPECT_EQ(Codes(), (Texts{L"0", L"-2147483648", L"-1", L"0", L"1", L"2147483647"}));
}

TEST_F(CategoryTreeTest, TakesParentAndPathFromTheRecordsAboveWhateverTheHostsKeys)
{
    FakeDisciplineInfo& discipline = library.AddDiscipline(L"d");
    FakeCategoryInfo& category = library.MakeCategory(L"c");
    FakeCategoryInfo& endCategory = library.MakeCategory(L"e");
    host.categoryInfo.disciplines = {{L"key of d", &discipline}};
    discipline.categories[L"key of c"] = &category;
    category.subCategories[L"key of e"] = &endCategory;
    EXPECT_EQ(Describe(*Category(L"c")), Describe(Record(L"c", L"d", {L"name d", L"name c"}, false)));
    EXPECT_EQ(Describe(*Category(L"e")), Describe(Record(L"e", L"c", {L"name d", L"name c", L"name e"}, true)));
}

TEST_F(CategoryTreeTest, LeavesOutDisciplinesThatAreNull)
{
    FillTwoDisciplines();
    host.categoryInfo.disciplines[L""] = nullptr;
    host.categoryInfo.disciplines[L"z"] = nullptr;
    EXPECT_EQ(Codes(), (Texts{L"0", L"w", L"w2", L"w2b", L"w2a", L"w1", L"a"}));
    ExpectInitWarnings({L"pDiscip为空", L"pDiscip为空"});
}

TEST_F(CategoryTreeTest, LeavesOutCategoriesThatAreNull)
{
    FakeDisciplineInfo& discipline = library.AddDiscipline(L"d");
    library.AddCategory(discipline, L"c2", -5);
    library.AddCategory(discipline, L"c1", 5);
    discipline.categories[L"a"] = nullptr;
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c2", L"c1"}));
    ExpectInitWarnings({L"cateIter->second为空"});
}

TEST_F(CategoryTreeTest, LeavesOutEndCategoriesThatAreNull)
{
    FakeCategoryInfo& category = library.AddCategory(library.AddDiscipline(L"d"), L"c");
    library.AddEndCategory(category, L"e2", -5);
    library.AddEndCategory(category, L"e1", 5);
    category.subCategories[L"a"] = nullptr;
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c", L"e2", L"e1"}));
    EXPECT_EQ(Access().LeavesOfHost().count(L"a"), 0U);
    ExpectInitWarnings({L"endcateIter->second为空"});
}

TEST_F(CategoryTreeTest, ACategoryOfNullEndCategoriesAloneIsNoLeaf)
{
    FakeCategoryInfo& category = library.AddCategory(library.AddDiscipline(L"d"), L"c");
    category.subCategories[L"a"] = nullptr;
    EXPECT_FALSE(Category(L"c")->IsLeaf);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"c"), nullptr);
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c"}));
}

TEST_F(CategoryTreeTest, OneNullOfEachLevelIsReportedWhereItStands)
{
    FakeDisciplineInfo& first = library.AddDiscipline(L"d1", 1);
    FakeCategoryInfo& category = library.AddCategory(first, L"c");
    category.subCategories[L"null"] = nullptr;
    first.categories[L"null"] = nullptr;
    host.categoryInfo.disciplines[L"null"] = nullptr;
    FakeDisciplineInfo& second = library.AddDiscipline(L"d2", 2);
    second.categories[L"null"] = nullptr;
    EXPECT_EQ(Codes(), (Texts{L"0", L"d1", L"c", L"d2"}));
    ExpectInitWarnings({L"endcateIter->second为空", L"cateIter->second为空", L"cateIter->second为空", L"pDiscip为空"});
}

TEST_F(CategoryTreeTest, ALevelOfNullsAloneIsEmpty)
{
    for (int key = 0; key < 40; ++key) {
        host.categoryInfo.disciplines[std::to_wstring(key)] = nullptr;
    }
    EXPECT_EQ(Codes(), (Texts{L"0"}));
    EXPECT_EQ(host.debugMessages.Warnings().size(), 40U);
}

TEST_F(CategoryTreeTest, SortsWhatStandsAmongManyNulls)
{
    for (int number = 0; number < 100; ++number) {
        host.categoryInfo.disciplines[L"null " + std::to_wstring(number)] = nullptr;
        library.AddDiscipline(std::to_wstring(1000 + number), 100 - number);
    }
    Texts expected{L"0"};
    for (int number = 99; number >= 0; --number) {
        expected.push_back(std::to_wstring(1000 + number));
    }
    EXPECT_EQ(Codes(), expected);
}

TEST_F(CategoryTreeTest, KeepsRecordsWithEmptyTexts)
{
    FakeDisciplineInfo& discipline = library.AddDiscipline(L"");
    discipline.id = discipline.name = L"";
    FakeCategoryInfo& category = library.AddCategory(discipline, L"");
    category.id = category.name = L"";
    const auto categories = Service().GetCategories();
    ASSERT_EQ(categories.size(), 3U);
    EXPECT_EQ(categories[1]->ParentCode, L"0");
    EXPECT_EQ(categories[1]->NamePath, (Texts{L"全部", L""}));
    EXPECT_EQ(categories[2]->NamePath, (Texts{L"", L""}));
    EXPECT_TRUE(categories[2]->IsLeaf);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L""), &category);
}

TEST_F(CategoryTreeTest, KeepsEveryRecordOfOneCode)
{
    FakeDisciplineInfo& first = library.AddDiscipline(L"x", 1);
    FakeDisciplineInfo& second = library.AddDiscipline(L"y", 2);
    second.code = L"x";
    library.AddCategory(first, L"same", 1).name = L"first";
    library.AddCategory(second, L"same", 1).name = L"second";
    const auto categories = Service().GetCategories();
    EXPECT_EQ(Codes(), (Texts{L"0", L"x", L"same", L"x", L"same"}));
    EXPECT_EQ(categories[4]->NamePath, (Texts{L"name y", L"second"}));
}

TEST_F(CategoryTreeTest, TakesWhatIsBeneathAnEndCategoryForNothing)
{
    FakeCategoryInfo& category = library.AddCategory(library.AddDiscipline(L"d"), L"c");
    FakeCategoryInfo& endCategory = library.AddEndCategory(category, L"e");
    library.AddEndCategory(endCategory, L"deeper");
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c", L"e"}));
    EXPECT_TRUE(Category(L"e")->IsLeaf);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), &endCategory);
}

TEST_F(CategoryTreeTest, OneObjectInTwoPlacesGivesTwoRecords)
{
    FakeDisciplineInfo& first = library.AddDiscipline(L"d1", 1);
    FakeDisciplineInfo& second = library.AddDiscipline(L"d2", 2);
    FakeCategoryInfo& category = library.AddCategory(first, L"c");
    second.categories[L"c"] = &category;
    const auto categories = Service().GetCategories();
    EXPECT_EQ(Codes(), (Texts{L"0", L"d1", L"c", L"d2", L"c"}));
    EXPECT_EQ(categories[2]->ParentCode, L"d1");
    EXPECT_EQ(categories[4]->ParentCode, L"d2");
    EXPECT_EQ(categories[4]->NamePath, (Texts{L"name d2", L"name c"}));
}

TEST_F(CategoryTreeTest, StaysAsItWasWhenTheHostChanges)
{
    FillTwoDisciplines();
    Service();
    library.AddDiscipline(L"new");
    EXPECT_EQ(Codes(), (Texts{L"0", L"w", L"w2", L"w2b", L"w2a", L"w1", L"a"}));
}

TEST_F(CategoryTreeTest, BuiltAgainSeesTheHostAsItIsNow)
{
    FillTwoDisciplines();
    const auto before = Service().GetCategories();
    FakeDisciplineInfo& only = library.AddDiscipline(L"new");
    host.categoryInfo.disciplines = {{L"new", &only}};
    Service().Init();
    EXPECT_EQ(Codes(), (Texts{L"0", L"new"}));
    EXPECT_EQ(before.size(), 7U);
    EXPECT_EQ(before[1]->Code, L"w");
}

TEST_F(CategoryTreeTest, BuiltAgainStillKnowsItsFormerLeaves)
{
    FillTwoDisciplines();
    const tarn::ITarnCategoryInfo* former = Service().GetEndTarnCategoryByCode(L"w2a");
    ASSERT_NE(former, nullptr);
    FakeDisciplineInfo& only = library.AddDiscipline(L"new");
    FakeCategoryInfo& added = library.AddCategory(only, L"added");
    host.categoryInfo.disciplines = {{L"new", &only}};
    Service().Init();
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"w2a"), former);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"added"), &added);
    EXPECT_EQ(Access().LeavesOfHost().size(), 4U);
}

TEST_F(CategoryTreeTest, BuiltAgainWithoutACategoryLibraryIsTheRootAlone)
{
    FillTwoDisciplines();
    Service();
    host.Remove(&hostsdk::HostServices::categoryInfo);
    Service().Init();
    EXPECT_EQ(Codes(), (Texts{L"0"}));
    EXPECT_EQ(Access().LeavesOfHost().size(), 3U);
    ExpectInitWarnings({L"pUtil为空"});
}

TEST_F(CategoryTreeTest, HandsOutACopyOfTheListWithItsOwnRecords)
{
    FillTwoDisciplines();
    auto categories = Service().GetCategories();
    categories[1]->Name = L"written";
    categories.clear();
    EXPECT_EQ(Service().GetCategories().size(), 7U);
    EXPECT_EQ(Category(L"w")->Name, L"written");
}
