#pragma once

#include "ComponentDatabase/HostObjects/LocalCategory.h"
#include "tarn/ITarnDisciplineInfo.h"

namespace componentdatabase {

/// A discipline as the library sees it. Not changed once the tree is made.
class LocalDiscipline final : public tarn::ITarnDisciplineInfo
{
public:
    LocalDiscipline(const DisciplineRow& row, bool isChinese)
        : m_sortIndex(row.sortIndex), m_id(std::to_wstring(row.id)), m_code(row.code.toStdWString()),
          m_name(row.name.In(isChinese).toStdWString())
    {
    }

    int GetSortIndex() const override { return m_sortIndex; }
    std::wstring GetId() const override { return m_id; }
    std::wstring GetName() const override { return m_name; }
    void GetCategories(std::map<std::wstring, const tarn::ITarnCategoryInfo*>& categories) const override
    {
        categories = m_categories;
    }
    std::wstring GetCode() const override { return m_code; }

    /// Puts a category into the discipline, by its code. Only while the tree is made.
    void AddCategory(const LocalCategory& category) { m_categories[category.GetCode()] = &category; }

private:
    int m_sortIndex;
    std::wstring m_id;
    std::wstring m_code;
    std::wstring m_name;
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> m_categories;
};

} // namespace componentdatabase
