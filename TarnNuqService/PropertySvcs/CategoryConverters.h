#pragma once

#include "TarnNuqServiceExport.h"

#include <memory>

namespace tarn {
class ITarnCategoryInfo;
class ITarnDisciplineInfo;
} // namespace tarn

namespace tarnnuq {

class ICategory;

/// Makes a category record from a discipline of the host's category library.
///
/// Fills the text id, the name and the code; where the record stands in the tree is not known here.
/// @param discipInfo the discipline; null raises the debug warning "discipInfo为空"
/// @return a new record; null without a discipline, and, with the debug warning "spCategory为空", when none can be made
TARNNUQSERVICE_EXPORT std::shared_ptr<ICategory> GetCategoryFromTarnDisciplineInfo(
    const tarn::ITarnDisciplineInfo* discipInfo);

/// Makes a category record from a category or end category of the host's category library.
///
/// Fills the text id, the name and the code; where the record stands in the tree is not known here.
/// @param categoryInfo the category; null raises the debug warning "categoryInfo为空"
/// @return a new record; null without a category, and, with the debug warning "spCategory为空", when none can be made
TARNNUQSERVICE_EXPORT std::shared_ptr<ICategory> GetCategoryFromTarnCategoryInfo(
    const tarn::ITarnCategoryInfo* categoryInfo);

} // namespace tarnnuq
