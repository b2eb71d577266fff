#pragma once

#include "ComponentDatabase/HostObjects/LocalDatabase.h"
#include "ComponentDatabase/HostObjects/LocalProperty.h"
#include "tarn/ITarnCategoryInfo.h"

#include <mutex>
#include <vector>

namespace componentdatabase {

/// A category or end category as the library sees it. Its properties are read when they are first asked for; usable
/// from several threads once the tree is made.
class LocalCategory final : public tarn::ITarnCategoryInfo
{
public:
    /// @param database must live longer
    LocalCategory(const CategoryRow& row, const LocalDatabase& database, bool isChinese);

    int GetSortIndex() const override { return m_sortIndex; }
    std::wstring GetId() const override { return m_id; }
    std::wstring GetCode() const override { return m_code; }
    std::wstring GetName() const override { return m_name; }
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> GetSubCategories() const override { return m_subCategories; }
    void GetProperties(std::map<std::wstring, const tarn::ITarnPropertyInfo*>& properties) const override;

    /// Puts an end category beneath this one, by its code. Only while the tree is made.
    void AddSubCategory(const LocalCategory& category) { m_subCategories[category.m_code] = &category; }

private:
    void ReadProperties() const;

    const LocalDatabase& m_database;
    qint64 m_row;
    bool m_isChinese;
    int m_sortIndex;
    std::wstring m_id;
    std::wstring m_code;
    std::wstring m_name;
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> m_subCategories;
    mutable std::mutex m_mutex;
    mutable bool m_isRead = false;
    mutable std::vector<std::unique_ptr<LocalProperty>> m_properties;
};

} // namespace componentdatabase
