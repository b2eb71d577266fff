#pragma once

#include "ComponentDatabase/DatabaseReason.h"
#include "ComponentDatabase/Sql/Connection.h"

#include <memory>

namespace componentdatabase {

/// How long reading waits for a lock: a writer holds it for moments, and the window must not stand still.
constexpr int ReadingWaitMs = 500;
/// How long writing waits for a lock.
constexpr int WritingWaitMs = 5000;

/// An opened database and how it has to be opened again.
struct OpenedDatabase
{
    std::unique_ptr<Connection> connection;
    Connection::Access access = Connection::Access::ReadOnly;
};

/// Opens a database for reading, checked whole and of the version that this program reads.
///
/// Brings an older file up to date, and finishes or takes back what a killed writer has left, where the file may be
/// written. Changes nothing otherwise.
/// @return without a connection, with a reason, when the file was refused
OpenedDatabase OpenForReading(const QString& path, DatabaseReason& reason, int waitMs = ReadingWaitMs);

/// Opens a database for writing, checked whole, brought up to date, in WAL mode so that others go on reading.
/// @return null, with a reason, when the file was refused; it is then unchanged
std::unique_ptr<Connection> OpenForWriting(const QString& path, DatabaseReason& reason, int waitMs = WritingWaitMs);

} // namespace componentdatabase
