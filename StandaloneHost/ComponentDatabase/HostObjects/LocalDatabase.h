#pragma once

#include "ComponentDatabase/ComponentDatabase.h"

#include <QString>
#include <functional>
#include <memory>
#include <mutex>

namespace componentdatabase {

/// The component database of the host's current product, opened when something is first asked of it.
///
/// Until then nothing is read and no database code is loaded. A file that is refused is told once, by the given
/// function, and is not looked at again, except one that was locked. Usable from several threads.
class LocalDatabase
{
public:
    /// @param tell receives the reason when the file is refused or fails later, once for each sentence
    LocalDatabase(QString path, std::function<void(const DatabaseReason&)> tell);

    const QString& Path() const { return m_path; }

    /// The open database; null when it was refused.
    const ComponentDatabase* Get() const;

    /// Why there is no database; no reason when there is one. Opens it.
    DatabaseReason Fault() const;

    /// Tells a fault of reading; no reason is no fault.
    void Tell(const DatabaseReason& reason) const;

private:
    QString m_path;
    std::function<void(const DatabaseReason&)> m_tell;
    mutable std::mutex m_mutex;
    mutable std::unique_ptr<ComponentDatabase> m_database;
    mutable DatabaseReason m_fault;
    mutable QString m_told;
};

/// Opens a database with the module that holds the database's code.
/// @return null, with a reason, when the module or the file was refused
std::unique_ptr<ComponentDatabase> OpenDatabase(const QString& path, DatabaseReason& reason);

} // namespace componentdatabase
