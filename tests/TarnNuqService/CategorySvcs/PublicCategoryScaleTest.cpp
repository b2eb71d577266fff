// Large and hostile replies: the time grows with their size, not with its square. WaitLimit is a hundred times what the
// work takes, and a small part of what it would take the other way.
#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"

#include <QElapsedTimer>
#include <algorithm>

using testsupport::CategoryRow;

namespace {

class PublicCategoryScaleTest : public testsupport::PublicCategoryFixture, public ::testing::WithParamInterface<int>
{
protected:
    /// A chain of categories, each below the next one in the list.
    static std::vector<CategoryRow> Chain(int count)
    {
        std::vector<CategoryRow> rows;
        for (int id = 1; id <= count; ++id) {
            rows.push_back({id, id < count ? id + 1 : 0, static_cast<double>(id), 0});
        }
        return rows;
    }

    /// The same categories with their own ids as counts, in reverse.
    static std::vector<CategoryRow> Counts(int count)
    {
        std::vector<CategoryRow> rows;
        for (int id = count; id > 0; --id) {
            rows.push_back({id, 0, 0.0, id});
        }
        return rows;
    }
};

} // namespace

TEST_P(PublicCategoryScaleTest, RefreshesEveryCount)
{
    Request(Chain(GetParam()));
    const Categories refreshed = Request(Counts(GetParam()));
    ASSERT_EQ(refreshed.size(), GetParam());
    EXPECT_TRUE(std::all_of(refreshed.begin(), refreshed.end(),
        [](const tarnnuq::ICategory& category) { return category.Count == category.Id; }));
}

TEST_P(PublicCategoryScaleTest, ReadsAsManyElementsForOneCategory)
{
    Request(Chain(GetParam()));
    std::vector<CategoryRow> rows(static_cast<std::size_t>(GetParam()), CategoryRow{GetParam(), 0, 0.0, 3});
    rows.push_back({GetParam(), 0, 0.0, 4});
    EXPECT_EQ(Request(rows).back().Count, 4);
}

TEST_P(PublicCategoryScaleTest, LoadsAndRefreshesOneIdOverAndOver)
{
    const std::vector<CategoryRow> rows(static_cast<std::size_t>(GetParam()), CategoryRow{1, 1, 0.0, 3});
    Request(rows);
    const Categories refreshed = Request(rows);
    ASSERT_EQ(refreshed.size(), GetParam());
    EXPECT_EQ(std::count_if(refreshed.begin(), refreshed.end(),
                  [](const tarnnuq::ICategory& category) { return category.Count == 3; }),
        1);
}

TEST_P(PublicCategoryScaleTest, WalksAChainThroughTheWholeList)
{
    Request(Chain(GetParam()));
    QElapsedTimer timer;
    timer.start();
    const QList<tarnnuq::ICategory*> chain = Service().GetFullCategories(L"1");
    EXPECT_LT(std::chrono::milliseconds(timer.elapsed()), testsupport::WaitLimit);
    ASSERT_EQ(chain.size(), GetParam());
    EXPECT_EQ(chain.front()->Id, GetParam());
    EXPECT_EQ(chain.back()->Id, 1);
}

TEST_P(PublicCategoryScaleTest, WalksACycleThroughTheWholeList)
{
    std::vector<CategoryRow> rows = Chain(GetParam());
    rows.back().parentId = 1;
    Request(rows);
    QElapsedTimer timer;
    timer.start();
    const QList<tarnnuq::ICategory*> chain = Service().GetFullCategories(L"2");
    EXPECT_LT(std::chrono::milliseconds(timer.elapsed()), testsupport::WaitLimit);
    ASSERT_EQ(chain.size(), GetParam());
    EXPECT_EQ(chain.front()->Id, 1);
    EXPECT_EQ(chain.back()->Id, 2);
}

INSTANTIATE_TEST_SUITE_P(Categories, PublicCategoryScaleTest, ::testing::Values(10000, 100000));
