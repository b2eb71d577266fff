#pragma once

#include "ComponentDatabase/ComponentDatabase.h"

#include <memory>

namespace componentdatabase {

/// Opens component databases; what the module with the database's code exports.
class DatabaseOpener
{
public:
    virtual ~DatabaseOpener() = default;
    DatabaseOpener(const DatabaseOpener&) = delete;
    DatabaseOpener& operator=(const DatabaseOpener&) = delete;

    /// Opens a file for reading and checks it whole.
    ///
    /// A file of an older version is brought up to date first, and what a killed writer has left is finished or taken
    /// back, if the file may be written. Otherwise the file is never changed.
    /// @return null, with a reason, when it was refused
    virtual std::unique_ptr<ComponentDatabase> Open(const QString& path, DatabaseReason& reason) const = 0;

protected:
    DatabaseOpener() = default;
};

} // namespace componentdatabase
