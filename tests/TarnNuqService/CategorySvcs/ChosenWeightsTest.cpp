#include "CategorySvcs/CategoryIdIndex_p.h"
#include "CategorySvcs/WeightOrder_p.h"
#include "Records/ICategory.h"

#include <QtAlgorithms>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

using tarnnuq::ICategory;

/// Decides the order of items only while a sort asks for it, so that every pivot is the worst.
class Adversary
{
public:
    explicit Adversary(int count) : m_values(static_cast<std::size_t>(count), Gas) {}

    bool Less(int a, int b)
    {
        if (Value(a) == Gas && Value(b) == Gas) {
            Value(a == m_candidate ? a : b) = m_next++;
        }
        if (Value(a) == Gas) {
            m_candidate = a;
        } else if (Value(b) == Gas) {
            m_candidate = b;
        }
        return Value(a) < Value(b);
    }

    const std::vector<double>& Values() const { return m_values; }

private:
    static constexpr double Gas = 1e9;

    double& Value(int item) { return m_values[static_cast<std::size_t>(item)]; }

    std::vector<double> m_values;
    double m_next = 0;
    int m_candidate = 0;
};

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
std::vector<double> WorstWeights(int count)
{
    Adversary adversary(count);
    std::vector<int> items(static_cast<std::size_t>(count));
    std::iota(items.begin(), items.end(), 0);
    qSort(items.begin(), items.end(), [&adversary](int a, int b) { return adversary.Less(a, b); });
    return adversary.Values();
}
QT_WARNING_POP

TEST(ChosenWeights, AListThatIsTheWorstForTheSortEndsInOrder)
{
    const std::vector<double> weights = WorstWeights(20000);
    QList<ICategory> categories;
    for (const double weight : weights) {
        ICategory category;
        category.Id = categories.size();
        category.Weight = weight;
        categories.append(category);
    }

    tarnnuq::SortByWeight(categories);

    std::vector<bool> seen(weights.size());
    for (int i = 0; i < categories.size(); ++i) {
        const auto id = static_cast<std::size_t>(categories.at(i).Id);
        EXPECT_EQ(categories.at(i).Weight, weights[id]);
        EXPECT_FALSE(seen[id]);
        seen[id] = true;
        if (i > 0) {
            ASSERT_LE(categories.at(i - 1).Weight, categories.at(i).Weight) << i;
        }
    }
}

TEST(ChosenIds, AreFoundAlikeByIndexesThatHashThemDifferently)
{
    QList<ICategory> categories;
    for (int i = 0; i < 5000; ++i) {
        ICategory category;
        category.Id = (i % 2500) << 16;
        categories.append(category);
    }
    const tarnnuq::CategoryIdIndex first(categories);
    const tarnnuq::CategoryIdIndex second(categories);

    for (int i = 0; i < 2500; ++i) {
        EXPECT_EQ(first.Find(i << 16), &categories[i]);
        EXPECT_EQ(second.Find(i << 16), &categories[i]);
    }
    EXPECT_EQ(first.Find(1), nullptr);
}

} // namespace
