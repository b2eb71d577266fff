#include "CategorySvcs/WeightOrder_p.h"
#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"

#include <QtAlgorithms>
#include <limits>
#include <random>

using tarnnuq::ICategory;
using testsupport::IdsOf;

namespace {

using Categories = QList<ICategory>;
using WeightOrderOfRepliesTest = testsupport::PublicCategoryFixture;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// The order that hosts know: qSort of the records themselves, compared by value.
void SortLiterally(Categories& categories)
{
    qSort(categories.begin(), categories.end(), [](ICategory a, ICategory b) { return a.Weight < b.Weight; });
}
QT_WARNING_POP

/// Categories with the numbers from 0 on as ids.
Categories WithWeights(const std::vector<double>& weights)
{
    Categories categories;
    for (const double weight : weights) {
        ICategory category;
        category.Id = categories.size();
        category.Weight = weight;
        category.Name = std::to_wstring(category.Id);
        categories.append(category);
    }
    return categories;
}

/// Sorted both ways, and then once more, since every reply sorts the list that the last one left.
void ExpectTheLiteralOrder(const std::vector<double>& weights)
{
    Categories sorted = WithWeights(weights);
    Categories expected = sorted;
    for (int reply = 0; reply < 3; ++reply) {
        tarnnuq::SortByWeight(sorted);
        SortLiterally(expected);
        ASSERT_EQ(IdsOf(sorted), IdsOf(expected)) << weights.size() << " categories, reply " << reply;
    }
}

std::vector<double> RandomWeights(std::mt19937& random, int count, int distinct)
{
    std::uniform_int_distribution<int> weight(-distinct / 2, distinct / 2);
    std::vector<double> weights(static_cast<std::size_t>(count));
    for (double& value : weights) {
        value = weight(random) / 4.0;
    }
    return weights;
}

} // namespace

TEST(WeightOrderTest, IsTheLiteralOneForRandomListsWithTies)
{
    std::mt19937 random(20220125);
    for (int count = 0; count < 130; ++count) {
        for (const int distinct : {1, 2, 3, 10, 1000}) {
            ExpectTheLiteralOrder(RandomWeights(random, count, distinct));
        }
    }
}

TEST(WeightOrderTest, IsTheLiteralOneForLongLists)
{
    std::mt19937 random(1);
    for (const int distinct : {1, 2, 50, 1000000}) {
        ExpectTheLiteralOrder(RandomWeights(random, 3000, distinct));
    }
}

TEST(WeightOrderTest, IsTheLiteralOneForListsInOrderAndInReverse)
{
    std::vector<double> weights;
    for (int index = 0; index < 100; ++index) {
        weights.push_back(index / 3);
    }
    ExpectTheLiteralOrder(weights);
    ExpectTheLiteralOrder(std::vector<double>(weights.rbegin(), weights.rend()));
}

TEST(WeightOrderTest, IsTheLiteralOneForWeightsAtEveryLimit)
{
    using Limits = std::numeric_limits<double>;
    ExpectTheLiteralOrder({Limits::max(), 0.0, -0.0, Limits::lowest(), Limits::denorm_min(), Limits::infinity(),
        -Limits::infinity(), 1.0, -0.0, 0.0});
}

TEST(WeightOrderTest, MovesTheWholeRecords)
{
    Categories categories = WithWeights({3, 1, 2});
    categories[0].Count = 30;
    tarnnuq::SortByWeight(categories);
    EXPECT_EQ(testsupport::NamesOf(categories), (std::vector<std::wstring>{L"1", L"2", L"0"}));
    EXPECT_EQ(testsupport::CountsOf(categories), (std::vector<int>{0, 0, 30}));
}

TEST(WeightOrderTest, LeavesACopyOfTheListAlone)
{
    Categories categories = WithWeights({3, 1, 2});
    const Categories copy = categories;
    tarnnuq::SortByWeight(categories);
    EXPECT_EQ(IdsOf(copy), (std::vector<int>{0, 1, 2}));
}

TEST_F(WeightOrderOfRepliesTest, IsTheLiteralOneOnEveryReply)
{
    std::mt19937 random(3);
    const std::vector<double> weights = RandomWeights(random, 200, 4);
    std::vector<testsupport::CategoryRow> rows;
    for (const double weight : weights) {
        rows.push_back({static_cast<int>(rows.size()), 0, weight});
    }
    ::Categories expected = WithWeights(weights);
    for (int reply = 0; reply < 3; ++reply) {
        SortLiterally(expected);
        EXPECT_EQ(IdsOf(Request(rows)), IdsOf(expected));
    }
}
