#include "PropertySvcs/CategoryTreeBuilder_p.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "PropertySvcs/BySortIndex_p.h"
#include "PropertySvcs/CategoryConverters.h"
#include "Records/ICategory.h"
#include "tarn/ITarnCategoryInfo.h"
#include "tarn/ITarnCategoryInfoUtils.h"
#include "tarn/ITarnDisciplineInfo.h"
#include "tarn/TarnCategoryInfoUtilsHandler.h"

#include <initializer_list>

namespace tarnnuq {

namespace {

std::shared_ptr<ICategory> MakeRoot()
{
    auto spCategoryRoot = MakeRecord<ICategory>();
    if (spCategoryRoot) {
        spCategoryRoot->IdText = L"0";
        spCategoryRoot->Name = L"全部";
        spCategoryRoot->Code = L"0";
        spCategoryRoot->Count = 0;
        spCategoryRoot->SetIsLeaf(false);
    }
    return spCategoryRoot;
}

void PutBeneath(const ICategory& parent, ICategory& category)
{
    category.ParentCode = parent.Code;
    category.ParentIdText = parent.IdText;
}

// Not an assigned list of texts: that would copy each of them twice.
void SetNamePath(ICategory& category, std::initializer_list<const ICategory*> path)
{
    category.NamePath.reserve(path.size());
    for (const ICategory* step : path) {
        category.NamePath.push_back(step->Name);
    }
}

} // namespace

CategoryTreeBuilder::CategoryTreeBuilder(
    RecordList<ICategory>& categories, EndCategoryMap& endCategories, const WarningSource& source)
    : m_categories(categories), m_endCategories(endCategories), m_lastKept(endCategories.end()), m_source(source)
{
}

void CategoryTreeBuilder::Build()
{
    const auto spCategoryRoot = MakeRoot();
    if (!spCategoryRoot) {
        WarnNull(m_source, L"spCategoryRoot 为空");
        return;
    }
    m_categories.push_back(spCategoryRoot);
    AppendDisciplines(*spCategoryRoot);
}

void CategoryTreeBuilder::AppendDisciplines(const ICategory& root)
{
    const tarn::ITarnCategoryInfoUtils* pUtil = tarn::TarnCategoryInfoUtilsHandler::Get().GetUtils();
    if (!pUtil) {
        WarnNull(m_source, L"pUtil为空");
        return;
    }
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    if (!pUtil->GetDisciplines(disciplines)) {
        return;
    }
    for (const auto& entry : BySortIndex(disciplines)) {
        AppendDiscipline(entry.info, root);
    }
}

void CategoryTreeBuilder::AppendDiscipline(const tarn::ITarnDisciplineInfo* info, const ICategory& root)
{
    if (!info) {
        WarnNull(m_source, L"pDiscip为空");
        return;
    }
    const auto pDiscpCategory = GetCategoryFromTarnDisciplineInfo(info);
    if (!pDiscpCategory) {
        WarnNull(m_source, L"pDiscpCategory为空");
        return;
    }
    pDiscpCategory->SetIsLeaf(false);
    SetNamePath(*pDiscpCategory, {&root, pDiscpCategory.get()});
    PutBeneath(root, *pDiscpCategory);
    m_categories.push_back(pDiscpCategory);

    std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;
    info->GetCategories(categories);
    for (const auto& entry : BySortIndex(categories)) {
        AppendCategory(entry.info, *pDiscpCategory);
    }
}

void CategoryTreeBuilder::AppendCategory(const tarn::ITarnCategoryInfo* info, const ICategory& discipline)
{
    if (!info) {
        WarnNull(m_source, L"cateIter->second为空");
        return;
    }
    const auto pCategory = GetCategoryFromTarnCategoryInfo(info);
    if (!pCategory) {
        WarnNull(m_source, L"pCategory为空");
        return;
    }
    PutBeneath(discipline, *pCategory);
    // Name paths begin with the root's name at the disciplines alone.
    SetNamePath(*pCategory, {&discipline, pCategory.get()});
    const auto endCategories = info->GetSubCategories();
    pCategory->SetIsLeaf(endCategories.empty());
    if (endCategories.empty()) {
        KeepEndCategory(pCategory->Code, info);
    }
    m_categories.push_back(pCategory);
    for (const auto& entry : BySortIndex(endCategories)) {
        AppendEndCategory(entry, discipline, *pCategory);
    }
}

void CategoryTreeBuilder::AppendEndCategory(
    const HostEntry<tarn::ITarnCategoryInfo>& entry, const ICategory& discipline, const ICategory& category)
{
    if (!entry.info) {
        WarnNull(m_source, L"endcateIter->second为空");
        return;
    }
    const auto pEndCategory = GetCategoryFromTarnCategoryInfo(entry.info);
    if (!pEndCategory) {
        WarnNull(m_source, L"pEndCategory为空");
        return;
    }
    PutBeneath(category, *pEndCategory);
    SetNamePath(*pEndCategory, {&discipline, &category, pEndCategory.get()});
    pEndCategory->SetIsLeaf(true);
    m_categories.push_back(pEndCategory);
    KeepEndCategory(*entry.key, entry.info);
}

// The keys of one level usually stand together, in this order or the other: next to the last one is the place to look
// at first.
void CategoryTreeBuilder::KeepEndCategory(const std::wstring& key, const tarn::ITarnCategoryInfo* info)
{
    m_lastKept = m_endCategories.insert_or_assign(m_lastKept, key, info);
}

} // namespace tarnnuq
