#include "ComponentDatabase/HostObjects/LocalLegends.h"

namespace componentdatabase {

bool LocalLegends::DoGetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
    tarn::TarnLegendType type, std::map<std::wstring, std::wstring>& legends) const
{
    DatabaseReason reason;
    std::unique_ptr<ComponentDatabase> other;
    const QString path = QString::fromStdWString(dbPath);
    if (path != m_database.Path()) {
        other = OpenDatabase(path, reason);
    }
    const ComponentDatabase* const database = path == m_database.Path() ? m_database.Get() : other.get();
    std::vector<LegendRow> rows;
    if (database != nullptr) {
        rows = database->Legends(QString::fromStdWString(categoryCode), static_cast<int>(type), reason);
    }
    m_database.Tell(reason);
    if (database == nullptr || reason) {
        return false;
    }
    legends.clear();
    for (const LegendRow& row : rows) {
        legends[std::to_wstring(row.id)] = row.file.toStdWString();
    }
    return true;
}

} // namespace componentdatabase
