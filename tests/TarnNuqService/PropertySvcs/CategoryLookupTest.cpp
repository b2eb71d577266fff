#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"

using testsupport::FakeCategoryInfo;
using testsupport::FakeDisciplineInfo;

namespace {

using Texts = std::vector<std::wstring>;

class CategoryLookupTest : public testsupport::PropertyServiceFixture
{
protected:
    Texts ChainOf(const std::wstring& code)
    {
        Texts codes;
        for (const auto& spCategory : Service().GetFullCategories(code)) {
            codes.push_back(spCategory->Code);
        }
        return codes;
    }

    FakeDisciplineInfo& discipline = library.AddDiscipline(L"d");
    FakeCategoryInfo& category = library.AddCategory(discipline, L"c");
    FakeCategoryInfo& endCategory = library.AddEndCategory(category, L"e");
    FakeCategoryInfo& childless = library.AddCategory(discipline, L"l");
};

} // namespace

TEST_F(CategoryLookupTest, FindsEveryLevelByItsWholeCode)
{
    for (const wchar_t* code : {L"0", L"d", L"c", L"e", L"l"}) {
        EXPECT_EQ(Category(code)->Code, code);
    }
}

TEST_F(CategoryLookupTest, FindsNothingByLessOrMoreThanACode)
{
    library.AddCategory(discipline, L"Code");
    const std::wstring withNul(L"Code\0", 5);
    for (const std::wstring& code :
        Texts{L"", L"code", L"CODE", L"Cod", L"Code ", L" Code", L"Code1", L"00", withNul}) {
        EXPECT_EQ(Service().GetCategoryByCode(code), nullptr) << QString::fromStdWString(code).toStdString();
        EXPECT_EQ(ChainOf(code), Texts()) << QString::fromStdWString(code).toStdString();
        EXPECT_EQ(Service().GetEndTarnCategoryByCode(code), nullptr) << QString::fromStdWString(code).toStdString();
    }
}

TEST_F(CategoryLookupTest, FindsTheFirstOfOneCodeInTreeOrder)
{
    library.AddDiscipline(L"later", 1).code = L"e";
    EXPECT_EQ(Category(L"e")->NamePath.size(), 3U);
    library.AddDiscipline(L"earlier", -1).code = L"e";
    Service().Init();
    EXPECT_EQ(Category(L"e")->NamePath, (Texts{L"全部", L"name earlier"}));
}

TEST_F(CategoryLookupTest, FindsTheRootByItsCodeWhateverTheHostHas)
{
    library.AddDiscipline(L"0", -1);
    EXPECT_EQ(Category(L"0")->Name, L"全部");
    EXPECT_EQ(Service().GetFullCategories(L"0").front()->Name, L"全部");
}

TEST_F(CategoryLookupTest, LeavesLeadToTheHostsObjects)
{
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), &endCategory);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"l"), &childless);
}

TEST_F(CategoryLookupTest, OtherLevelsDoNot)
{
    for (const wchar_t* code : {L"0", L"d", L"c"}) {
        EXPECT_EQ(Service().GetEndTarnCategoryByCode(code), nullptr);
    }
}

TEST_F(CategoryLookupTest, WithoutLeavesThereAreNoObjects)
{
    host.categoryInfo.disciplines.clear();
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), nullptr);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L""), nullptr);
}

TEST_F(CategoryLookupTest, AnEndCategoryStandsUnderTheHostsKeyAndAChildlessCategoryUnderItsCode)
{
    discipline.categories = {{L"key of c", &category}, {L"key of l", &childless}};
    category.subCategories = {{L"key of e", &endCategory}};
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"key of e"), &endCategory);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), nullptr);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"l"), &childless);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"key of l"), nullptr);
}

TEST_F(CategoryLookupTest, TheLastObjectInTreeOrderStandsUnderASharedKey)
{
    FakeCategoryInfo& other = library.AddCategory(discipline, L"other", 7);
    FakeCategoryInfo& lastOfKey = library.MakeCategory(L"anything");
    other.subCategories[L"e"] = &lastOfKey;
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), &lastOfKey);
    EXPECT_EQ(Access().LeavesOfHost().size(), 2U);
}

TEST_F(CategoryLookupTest, AnObjectIsFoundAlthoughItsRecordChanged)
{
    Category(L"l")->Code = L"written";
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"l"), &childless);
    EXPECT_EQ(Service().GetCategoryByCode(L"l"), nullptr);
    EXPECT_EQ(Category(L"written")->NamePath, (Texts{L"name d", L"name l"}));
}

TEST_F(CategoryLookupTest, ChainsLeadFromTheDisciplineToTheCategory)
{
    EXPECT_EQ(ChainOf(L"e"), (Texts{L"d", L"c", L"e"}));
    EXPECT_EQ(ChainOf(L"c"), (Texts{L"d", L"c"}));
    EXPECT_EQ(ChainOf(L"l"), (Texts{L"d", L"l"}));
    EXPECT_EQ(ChainOf(L"d"), (Texts{L"d"}));
}

TEST_F(CategoryLookupTest, TheChainOfTheRootIsTheRoot)
{
    EXPECT_EQ(ChainOf(L"0"), (Texts{L"0"}));
}

TEST_F(CategoryLookupTest, ChainsHoldTheTreesOwnRecords)
{
    EXPECT_EQ(Service().GetFullCategories(L"e").front(), Service().GetCategoryByCode(L"d"));
}

TEST_F(CategoryLookupTest, AChainEndsBelowAParentWithoutACode)
{
    library.AddCategory(library.AddDiscipline(L"", 1), L"x");
    EXPECT_EQ(ChainOf(L"x"), (Texts{L"x"}));
}

TEST_F(CategoryLookupTest, AChainEndsBelowAParentWithTheRootsCode)
{
    library.AddCategory(library.AddDiscipline(L"0", 1), L"x");
    EXPECT_EQ(ChainOf(L"x"), (Texts{L"x"}));
}

TEST_F(CategoryLookupTest, AChainEndsBelowAMissingParent)
{
    Category(L"c")->ParentCode = L"gone";
    EXPECT_EQ(ChainOf(L"e"), (Texts{L"c", L"e"}));
}

TEST_F(CategoryLookupTest, AChainGoesToTheFirstOfSeveralParents)
{
    // The end category "e" comes before the discipline that shares its code.
    library.AddCategory(library.AddDiscipline(L"e", 1), L"x");
    EXPECT_EQ(ChainOf(L"x"), (Texts{L"d", L"c", L"e", L"x"}));
}

TEST_F(CategoryLookupTest, WrittenCyclesHoldEachCategoryOnce)
{
    Category(L"d")->ParentCode = L"e";
    EXPECT_EQ(ChainOf(L"e"), (Texts{L"d", L"c", L"e"}));
    EXPECT_EQ(ChainOf(L"c"), (Texts{L"e", L"d", L"c"}));
    Category(L"l")->ParentCode = L"l";
    EXPECT_EQ(ChainOf(L"l"), (Texts{L"l"}));
}

TEST_F(CategoryLookupTest, WithoutARootThereIsNothingToFind)
{
    host.categoryInfo.disciplines.clear();
    EXPECT_EQ(ChainOf(L"d"), Texts());
    EXPECT_EQ(ChainOf(L""), Texts());
    EXPECT_EQ(Service().GetCategoryByCode(L"d"), nullptr);
}
