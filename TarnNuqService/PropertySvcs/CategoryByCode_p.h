#pragma once

#include "ResponseHandlers/ResultTypes.h"

#include <string>

namespace tarnnuq {

/// Finds a category by its code, compared exactly.
/// @param categories a list without null entries
/// @return the first in list order; null when there is none
std::shared_ptr<ICategory> FindByCode(const RecordList<ICategory>& categories, const std::wstring& code);

/// Walks from a category to its outermost ancestor in the list, without the root (the category with the code "0").
///
/// Each step goes to the first category with the parent code. Whoever has the records may write into them: a cycle of
/// parent codes ends before a category that the chain holds already.
/// @param categories a list without null entries
/// @return the chain from the outermost ancestor down to the first category with that code; empty when there is none,
/// and for an empty code
RecordList<ICategory> ChainByCode(const RecordList<ICategory>& categories, const std::wstring& code);

} // namespace tarnnuq
