#include "ComponentDatabase/HostObjects/LocalCategory.h"

namespace componentdatabase {

LocalCategory::LocalCategory(const CategoryRow& row, const LocalDatabase& database, bool isChinese)
    : m_database(database), m_row(row.id), m_isChinese(isChinese), m_sortIndex(row.sortIndex),
      m_id(std::to_wstring(row.id)), m_code(row.code.toStdWString()), m_name(row.name.In(isChinese).toStdWString())
{
}

void LocalCategory::GetProperties(std::map<std::wstring, const tarn::ITarnPropertyInfo*>& properties) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isRead) {
        ReadProperties();
    }
    properties.clear();
    for (const std::unique_ptr<LocalProperty>& property : m_properties) {
        properties[property->GetId()] = property.get();
    }
}

void LocalCategory::ReadProperties() const
{
    const ComponentDatabase* const database = m_database.Get();
    if (database == nullptr) {
        return;
    }
    DatabaseReason reason;
    for (const CategoryPropertyRow& row : database->Properties(m_row, reason)) {
        m_properties.push_back(std::make_unique<LocalProperty>(row, m_isChinese));
    }
    // What failed is tried again at the next call: a lock goes away.
    m_isRead = !reason;
    m_database.Tell(reason);
}

} // namespace componentdatabase
