#include "CategorySvcs/WeightOrder_p.h"

#include "Records/ICategory.h"

#include <QVector>
#include <QtAlgorithms>
#include <algorithm>

namespace tarnnuq {

namespace {

struct WeightKey
{
    double weight;
    int index;
};

QVector<WeightKey> WeightKeys(const QList<ICategory>& categories)
{
    QVector<WeightKey> keys;
    keys.reserve(categories.size());
    for (const ICategory& category : categories) {
        keys.push_back({category.Weight, keys.size()});
    }
    return keys;
}

/// Thrown out of a sort that takes more comparisons than weights that nobody chose ever do.
struct TooManyComparisons
{
};

/// Compares weights and gives up in time: qSort takes the square of their number, and a stack as deep as they are many,
/// on weights that were chosen for it.
class BoundedComparison
{
public:
    explicit BoundedComparison(qint64& comparisonsLeft) : m_comparisonsLeft(comparisonsLeft) {}

    bool operator()(const WeightKey& a, const WeightKey& b) const
    {
        if (--m_comparisonsLeft < 0) {
            throw TooManyComparisons();
        }
        return a.weight < b.weight;
    }

private:
    qint64& m_comparisonsLeft;
};

qint64 LargestComparisonCount(int size)
{
    qint64 levels = 1;
    for (int rest = size; rest > 1; rest /= 2) {
        ++levels;
    }
    return 64 * levels * (size + 1);
}

// qSort is what hosts know this order from: its way with equal weights is kept, deprecated or not.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void SortKeys(QVector<WeightKey>& keys)
{
    qint64 comparisonsLeft = LargestComparisonCount(keys.size());
    try {
        qSort(keys.begin(), keys.end(), BoundedComparison(comparisonsLeft));
    } catch (const TooManyComparisons&) {
        std::sort(keys.begin(), keys.end(), [](const WeightKey& a, const WeightKey& b) { return a.weight < b.weight; });
    }
}
QT_WARNING_POP

// Follows each cycle of the permutation, so that every record moves at most once and none is copied.
void Rearrange(QList<ICategory>& categories, QVector<WeightKey>& keys)
{
    for (int start = 0; start < keys.size(); ++start) {
        int target = start;
        while (keys[target].index != start) {
            const int source = keys[target].index;
            categories.swapItemsAt(target, source);
            keys[target].index = target;
            target = source;
        }
        keys[target].index = target;
    }
}

} // namespace

// The records are heavy to copy and to swap by value; small keys give the same permutation at a fraction of the cost.
void SortByWeight(QList<ICategory>& categories)
{
    QVector<WeightKey> keys = WeightKeys(categories);
    SortKeys(keys);
    Rearrange(categories, keys);
}

} // namespace tarnnuq
