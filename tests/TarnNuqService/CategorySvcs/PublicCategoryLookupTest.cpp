#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"
#include "support/NamedCase.h"

using tarnnuq::ICategory;
using testsupport::CategoryRow;
using testsupport::IdsOf;

namespace {

using Ids = std::vector<int>;
using PublicCategoryLookupTest = testsupport::PublicCategoryFixture;

/// An id text and the id of the category that it finds; 1000000 for none.
struct LookupCase : testsupport::NamedCase
{
    std::wstring text;
    int found;
};

constexpr int None = 1000000;

class PublicCategoryIdTextTest : public testsupport::PublicCategoryFixture,
                                 public ::testing::WithParamInterface<LookupCase>
{
protected:
    PublicCategoryIdTextTest() { Request({{0}, {7}, {70}, {-7}, {2147483647}, {-2147483647 - 1}, {123}}); }
};

/// A list of categories, an id text and the ids of the chain that it gives.
struct ChainCase : testsupport::NamedCase
{
    std::vector<CategoryRow> rows;
    std::wstring text;
    Ids chain;
};

class PublicCategoryChainTest : public testsupport::PublicCategoryFixture,
                                public ::testing::WithParamInterface<ChainCase>
{
};

const std::vector<CategoryRow> Tree{{1, 0, 0}, {11, 1, 1}, {111, 11, 2}, {12, 1, 3}, {2, 0, 4}};

} // namespace

TEST_P(PublicCategoryIdTextTest, FindsTheCategoryWhoseIdReadsExactlySo)
{
    const ICategory* category = Service().GetCategoryById(GetParam().text);
    EXPECT_EQ(category ? category->Id : None, GetParam().found);
    EXPECT_EQ(Service().GetFullCategories(GetParam().text).isEmpty(), GetParam().found == None);
}

INSTANTIATE_TEST_SUITE_P(Texts, PublicCategoryIdTextTest,
    ::testing::Values(LookupCase{{"OneDigit"}, L"7", 7}, LookupCase{{"Zero"}, L"0", 0},
        LookupCase{{"Negative"}, L"-7", -7}, LookupCase{{"Largest"}, L"2147483647", 2147483647},
        LookupCase{{"Smallest"}, L"-2147483648", -2147483647 - 1}, LookupCase{{"Unknown"}, L"8", None},
        LookupCase{{"Empty"}, L"", None}, LookupCase{{"Beginning"}, L"12", None},
        LookupCase{{"LeadingZero"}, L"07", None}, LookupCase{{"Plus"}, L"+7", None},
        LookupCase{{"BlankInFront"}, L" 7", None}, LookupCase{{"BlankBehind"}, L"7 ", None},
        LookupCase{{"OnlyABlank"}, L" ", None}, LookupCase{{"NegativeZero"}, L"-0", None},
        LookupCase{{"DoubleZero"}, L"00", None}, LookupCase{{"OnlyAMinus"}, L"-", None},
        LookupCase{{"NegativeLeadingZero"}, L"-07", None}, LookupCase{{"Decimals"}, L"7.0", None},
        LookupCase{{"Exponent"}, L"7e1", None}, LookupCase{{"Hexadecimal"}, L"0x7", None},
        LookupCase{{"LettersBehind"}, L"7a", None}, LookupCase{{"OneBeyondTheLargest"}, L"2147483648", None},
        LookupCase{{"OneBelowTheSmallest"}, L"-2147483649", None},
        LookupCase{{"SevenBeyond32Bits"}, L"4294967303", None},
        LookupCase{{"SevenBeyond64Bits"}, L"18446744073709551623", None},
        LookupCase{{"ManyDigits"}, std::wstring(100000, L'7'), None}, LookupCase{{"ArabicDigit"}, L"\u0667", None},
        LookupCase{{"FullWidthDigit"}, L"\uFF17", None}, LookupCase{{"NulBehind"}, std::wstring(L"7\0", 2), None}),
    testsupport::RowName());

TEST_P(PublicCategoryChainTest, LeadsFromTheOutermostAncestorToTheCategory)
{
    Request(GetParam().rows);
    EXPECT_EQ(IdsOf(Service().GetFullCategories(GetParam().text)), GetParam().chain);
}

INSTANTIATE_TEST_SUITE_P(Trees, PublicCategoryChainTest,
    ::testing::Values(ChainCase{{"ThreeLevels"}, Tree, L"111", {1, 11, 111}},
        ChainCase{{"TwoLevels"}, Tree, L"12", {1, 12}}, ChainCase{{"TopCategory"}, Tree, L"1", {1}},
        ChainCase{{"UnknownId"}, Tree, L"3", {}}, ChainCase{{"EmptyText"}, Tree, L"", {}},
        ChainCase{{"NoPlainDecimal"}, Tree, L"011", {}}, ChainCase{{"EmptyCache"}, {}, L"1", {}},
        ChainCase{{"MissingParent"}, {{5, 99}, {6, 5, 1}}, L"6", {5, 6}},
        ChainCase{{"ParentZeroThatIsThere"}, {{0, 0}, {5, 0, 1}}, L"5", {5}},
        ChainCase{{"CategoryZeroBelowAnother"}, {{0, 5}, {5, 0, 1}}, L"0", {5, 0}},
        ChainCase{{"NegativeIds"}, {{-1, 0}, {-2, -1, 1}}, L"-2", {-1, -2}},
        ChainCase{{"ChildBeforeItsParent"}, {{2, 1, 0}, {1, 0, 1}}, L"2", {1, 2}},
        ChainCase{{"OwnParent"}, {{5, 5}}, L"5", {5}},
        ChainCase{{"BelowOneThatIsItsOwnParent"}, {{5, 5}, {6, 5, 1}}, L"6", {5, 6}},
        ChainCase{{"CycleOfTwo"}, {{1, 2}, {2, 1, 1}}, L"1", {2, 1}},
        ChainCase{{"CycleOfTwoFromItsOtherEnd"}, {{1, 2}, {2, 1, 1}}, L"2", {1, 2}},
        ChainCase{{"CycleOfThree"}, {{1, 2}, {2, 3, 1}, {3, 1, 2}}, L"1", {3, 2, 1}},
        ChainCase{{"BelowACycleOfTwo"}, {{1, 2}, {2, 1, 1}, {3, 1, 2}, {4, 3, 3}}, L"4", {2, 1, 3, 4}},
        ChainCase{
            {"FirstOfTwoParentsWithOneId"}, {{1, 8, 0}, {1, 9, 1}, {5, 1, 2}, {8, 0, 3}, {9, 0, 4}}, L"5", {8, 1, 5}},
        ChainCase{{"FirstOfTwoCategoriesWithOneId"}, {{5, 8, 0}, {5, 9, 1}, {8, 0, 2}, {9, 0, 3}}, L"5", {8, 5}},
        // The second of the doubled ids is never on the way: its own parent is the first.
        ChainCase{{"ParentWithTheSameId"}, {{5, 0, 0}, {5, 5, 1}}, L"5", {5}}),
    testsupport::RowName());

TEST_F(PublicCategoryLookupTest, AnEmptyCacheHasNothing)
{
    EXPECT_EQ(Service().GetCategoryById(L""), nullptr);
    EXPECT_EQ(Service().GetCategoryById(L"0"), nullptr);
    EXPECT_TRUE(Service().GetFullCategories(L"").isEmpty());
    EXPECT_TRUE(Service().GetFullCategories(L"0").isEmpty());
}

TEST_F(PublicCategoryLookupTest, AskingSendsNothing)
{
    Service().GetFullCategories(L"1");
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(PublicCategoryLookupTest, PointersLeadIntoTheCache)
{
    Request(Tree);
    ICategory* category = Service().GetCategoryById(L"11");
    const QList<ICategory*> chain = Service().GetFullCategories(L"111");
    ASSERT_EQ(chain.size(), 3);
    EXPECT_EQ(chain[1], category);
    category->Count = 77;
    chain[0]->Name = L"written";
    EXPECT_EQ(Service().GetCategoryById(L"11")->Count, 77);
    EXPECT_EQ(access->Categories()[0].Name, L"written");
    EXPECT_EQ(&access->Categories()[0], chain[0]);
}

TEST_F(PublicCategoryLookupTest, PointersHoldWhileAReceiverKeepsItsCopy)
{
    const Categories kept = Request(Tree);
    ICategory* category = Service().GetCategoryById(L"1");
    EXPECT_NE(category, &kept.front());
    Service().GetFullCategories(L"111");
    EXPECT_EQ(Service().GetCategoryById(L"1"), category);
}

TEST_F(PublicCategoryLookupTest, AParentWrittenIntoTheCacheChangesTheChain)
{
    Request(Tree);
    Service().GetCategoryById(L"12")->ParentId = 2;
    EXPECT_EQ(IdsOf(Service().GetFullCategories(L"12")), (Ids{2, 12}));
}
