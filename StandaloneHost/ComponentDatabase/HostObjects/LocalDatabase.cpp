#include "ComponentDatabase/HostObjects/LocalDatabase.h"

#include "ComponentDatabase/DatabaseOpener.h"
#include "FamilyFiles/ModuleLoader.h"

namespace componentdatabase {

LocalDatabase::LocalDatabase(QString path, std::function<void(const DatabaseReason&)> tell)
    : m_path(std::move(path)), m_tell(std::move(tell))
{
}

const ComponentDatabase* LocalDatabase::Get() const
{
    DatabaseReason fault;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const bool mayHaveChanged = m_fault.code == QLatin1String("database.locked");
        if (m_database != nullptr || (m_fault && !mayHaveChanged)) {
            return m_database.get();
        }
        m_fault = {};
        m_database = OpenDatabase(m_path, m_fault);
        fault = m_fault;
        if (m_database != nullptr) {
            return m_database.get();
        }
    }
    Tell(fault);
    return nullptr;
}

DatabaseReason LocalDatabase::Fault() const
{
    Get();
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_fault;
}

void LocalDatabase::Tell(const DatabaseReason& reason) const
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!reason || reason.english == m_told) {
            return;
        }
        m_told = reason.english;
    }
    m_tell(reason);
}

std::unique_ptr<ComponentDatabase> OpenDatabase(const QString& path, DatabaseReason& reason)
{
    static const familyfiles::LoadedModule module = familyfiles::LoadModule(
        familyfiles::ModuleFolders(), "libTarnNuqComponentDatabase.so", "TarnNuqComponentDatabase");
    if (module.object == nullptr) {
        reason = {QStringLiteral("database.module"), QString::fromStdString(module.reason.english),
            QString::fromStdString(module.reason.chinese)};
        return nullptr;
    }
    return static_cast<const DatabaseOpener*>(module.object)->Open(path, reason);
}

} // namespace componentdatabase
