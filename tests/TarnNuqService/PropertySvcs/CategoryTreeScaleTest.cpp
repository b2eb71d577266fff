// Large libraries: the time grows with their size, not with its square. The limit is many times what the work takes,
// and a small part of what it would take the other way.
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"

#include <algorithm>
#include <ctime>

using testsupport::FakeCategoryInfo;
using testsupport::FakeDisciplineInfo;

namespace {

class CategoryTreeScaleTest : public testsupport::PropertyServiceFixture
{
protected:
    template <typename Work>
    static void ExpectQuick(Work&& work)
    {
        // The time of this process alone: what else the machine does makes no difference.
        const std::clock_t start = std::clock();
        work();
        EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 5.0);
    }
};

} // namespace

TEST_F(CategoryTreeScaleTest, BuildsATreeOfAHundredThousandCategories)
{
    library.Fill(100000);
    ExpectQuick([this] { Service(); });
    const auto& categories = Access().Categories();
    ASSERT_EQ(categories.size(), 100001U);
    EXPECT_EQ(Access().LeavesOfHost().size(), 100000U - 310U);
    EXPECT_EQ(
        std::count_if(categories.begin(), categories.end(), [](const auto& spCategory) { return spCategory->IsLeaf; }),
        100000 - 310);
    EXPECT_EQ(categories.back()->NamePath.size(), 3U);
    EXPECT_EQ(Service().GetFullCategories(categories.back()->Code).size(), 3U);
}

TEST_F(CategoryTreeScaleTest, BuildsOneLevelOfAHundredThousand)
{
    FakeCategoryInfo& category = library.AddCategory(library.AddDiscipline(L"d"), L"c");
    for (int number = 0; number < 100000; ++number) {
        library.AddEndCategory(category, std::to_wstring(1000000 + number), (number * 7919) % 100003);
    }
    ExpectQuick([this] { Service(); });
    EXPECT_EQ(Access().Categories().size(), 100003U);
}

TEST_F(CategoryTreeScaleTest, WalksAChainThroughAHundredThousandCategories)
{
    // The end category of each discipline has the code of the next discipline, to which its child belongs therefore.
    constexpr int Links = 30000;
    for (int link = 0; link < Links; ++link) {
        FakeDisciplineInfo& discipline = library.AddDiscipline(std::to_wstring(1000000 + link), link);
        FakeCategoryInfo& category = library.AddCategory(discipline, L"c" + std::to_wstring(link));
        library.AddEndCategory(category, std::to_wstring(1000000 + link + 1));
    }
    Service();
    std::vector<std::shared_ptr<tarnnuq::ICategory>> chain;
    ExpectQuick([this, &chain] { chain = Service().GetFullCategories(L"c" + std::to_wstring(Links - 1)); });
    ASSERT_EQ(chain.size(), 2U * Links);
    EXPECT_EQ(chain.front()->Code, L"1000000");
    EXPECT_EQ(chain.back()->Code, L"c29999");
    for (std::size_t i = 1; i < chain.size(); ++i) {
        ASSERT_EQ(chain[i]->ParentCode, chain[i - 1]->Code) << i;
    }
}

TEST_F(CategoryTreeScaleTest, WalksALongCycleOnce)
{
    library.Fill(50000);
    const auto& categories = Access().Categories();
    for (std::size_t i = 1; i < categories.size(); ++i) {
        categories[i]->ParentCode = categories[i + 1 < categories.size() ? i + 1 : 1]->Code;
    }
    ExpectQuick([this, &categories] { EXPECT_EQ(Service().GetFullCategories(categories[2]->Code).size(), 50000U); });
}
