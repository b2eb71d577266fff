#pragma once

#include <QList>

namespace tarnnuq {

class ICategory;

/// Sorts categories by weight, ascending; equal weights end in no defined order.
void SortByWeight(QList<ICategory>& categories);

} // namespace tarnnuq
