#pragma once

#include "ResponseHandlers/ResultTypes.h"

#include <map>
#include <string>

namespace tarn {
class ITarnCategoryInfo;
class ITarnDisciplineInfo;
} // namespace tarn

namespace tarnnuq {

struct WarningSource;
template <typename Info>
struct HostEntry;

/// Host categories without sub-categories, which the host owns.
using EndCategoryMap = std::map<std::wstring, const tarn::ITarnCategoryInfo*>;

/// Builds the local category tree from the host's category library: the root, and depth-first the disciplines, their
/// categories and the end categories beneath those, each level by sort index.
///
/// Whatever the host lacks is reported and left out with all that is beneath it.
class CategoryTreeBuilder
{
public:
    /// @param categories receives the records behind those that it holds
    /// @param endCategories receives the host's objects of the leaves: of a childless category under its code, of an
    /// end category under the host's own key; a later one replaces an earlier one
    /// @param source on whose behalf warnings are raised
    CategoryTreeBuilder(RecordList<ICategory>& categories, EndCategoryMap& endCategories, const WarningSource& source);

    /// Builds the tree. Without memory for the root nothing is built.
    void Build();

private:
    void AppendDisciplines(const ICategory& root);
    void AppendDiscipline(const tarn::ITarnDisciplineInfo* info, const ICategory& root);
    void AppendCategory(const tarn::ITarnCategoryInfo* info, const ICategory& discipline);
    void AppendEndCategory(
        const HostEntry<tarn::ITarnCategoryInfo>& entry, const ICategory& discipline, const ICategory& category);

    void KeepEndCategory(const std::wstring& key, const tarn::ITarnCategoryInfo* info);

    RecordList<ICategory>& m_categories;
    EndCategoryMap& m_endCategories;
    EndCategoryMap::iterator m_lastKept;
    const WarningSource& m_source;
};

} // namespace tarnnuq
