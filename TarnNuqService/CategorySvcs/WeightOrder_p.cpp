#include "CategorySvcs/WeightOrder_p.h"

#include "Records/ICategory.h"

#include <QVector>
#include <QtAlgorithms>

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

// qSort is what hosts know this order from: its way with equal weights is kept, deprecated or not.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void SortKeys(QVector<WeightKey>& keys)
{
    qSort(keys.begin(), keys.end(), [](const WeightKey& a, const WeightKey& b) { return a.weight < b.weight; });
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
