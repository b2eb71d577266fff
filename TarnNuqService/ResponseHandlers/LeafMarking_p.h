#pragma once

#include "ResponseHandlers/ResultTypes.h"

namespace tarnnuq {

/// Marks each category as leaf when no category of the list, itself included, names its code as parent code.
///
/// Codes are compared exactly. An empty code counts like any other: such a category is a leaf only when every
/// category has a parent code. Ends at the first null entry. Linear in the length of the list.
void MarkLeaves(const RecordList<ICategory>& categories);

} // namespace tarnnuq
