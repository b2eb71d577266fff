#include "ComponentDatabase/Reading/DatabaseOpening.h"

#include "ComponentDatabase/Reading/DatabaseReasons.h"
#include "ComponentDatabase/Schema/Migration.h"

#include <QFile>
#include <QFileInfo>

namespace componentdatabase {

namespace {

using Access = Connection::Access;

/// The engine's answers when a file cannot be read without writing beside it.
bool WantsToWrite(const SqlFault& fault)
{
    constexpr int ReadOnly = 8;
    constexpr int CannotOpen = 14;
    return fault.Code() == ReadOnly || fault.Code() == CannotOpen;
}

DatabaseReason CheckFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return MissingReason(path);
    }
    if (!info.isFile()) {
        return NoFileReason(path);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return UnreadableReason(path, file.errorString());
    }
    return file.size() == 0 ? EmptyReason(path) : DatabaseReason();
}

bool MayBeWritten(const QString& path)
{
    // Beside the file the engine needs its journal.
    const QFileInfo info(path);
    return info.isWritable() && QFileInfo(info.absolutePath()).isWritable();
}

bool HasPendingWrites(const QString& path)
{
    return QFileInfo(path + QStringLiteral("-wal")).size() > 0 ||
           QFileInfo(path + QStringLiteral("-journal")).size() > 0;
}

/// The texts in a file from outside call no function with effects.
void Harden(const Connection& connection)
{
    connection.Run(QStringLiteral("PRAGMA trusted_schema = OFF"));
    connection.Run(QStringLiteral("PRAGMA cell_size_check = ON"));
}

/// The engine takes what is missing at the end for zeros.
bool IsCut(const Connection& connection, const QString& path)
{
    const qint64 size =
        connection.Number(QStringLiteral("PRAGMA page_count")) * connection.Number(QStringLiteral("PRAGMA page_size"));
    return !HasPendingWrites(path) && QFileInfo(path).size() < size;
}

/// Throws SqlFault.
DatabaseReason CheckContent(const Connection& connection, const QString& path)
{
    if (connection.Number(QStringLiteral("PRAGMA application_id")) != ApplicationId) {
        return ForeignReason(path);
    }
    const int version = VersionOf(connection);
    if (version > LatestVersion()) {
        return NewerReason(path, version, LatestVersion());
    }
    if (IsCut(connection, path)) {
        return DamagedReason(path, QStringLiteral("its end is missing"));
    }
    const QString fault = connection.Text(QStringLiteral("PRAGMA quick_check(1)"));
    if (fault != QLatin1String("ok")) {
        return DamagedReason(path, fault.section(QLatin1Char('\n'), 0, 0));
    }
    return version < 1 ? ForeignReason(path) : DatabaseReason();
}

std::unique_ptr<Connection> OpenChecked(const QString& path, Access access, int waitMs, DatabaseReason& reason)
{
    auto connection = std::make_unique<Connection>(path, access, waitMs);
    Harden(*connection);
    reason = CheckContent(*connection, path);
    return reason ? nullptr : std::move(connection);
}

std::unique_ptr<Connection> OpenWritable(const QString& path, int waitMs, DatabaseReason& reason)
{
    auto connection = OpenChecked(path, Access::ReadWrite, waitMs, reason);
    if (connection != nullptr) {
        connection->Run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection->Run(QStringLiteral("PRAGMA synchronous = NORMAL"));
        Migrate(*connection);
    }
    return connection;
}

/// Lets the engine finish what was begun, and brings the tables up to date.
void Repair(const QString& path, DatabaseReason& reason)
{
    const auto connection = OpenWritable(path, WritingWaitMs, reason);
}

OpenedDatabase OpenWithoutWriting(const QString& path, int waitMs, DatabaseReason& reason)
{
    try {
        return {OpenChecked(path, Access::ReadOnly, waitMs, reason), Access::ReadOnly};
    } catch (const SqlFault& fault) {
        if (!WantsToWrite(fault) || HasPendingWrites(path)) {
            throw;
        }
    }
    return {OpenChecked(path, Access::Immutable, waitMs, reason), Access::Immutable};
}

OpenedDatabase OpenRepaired(const QString& path, int waitMs, DatabaseReason& reason)
{
    if (HasPendingWrites(path) && MayBeWritten(path)) {
        Repair(path, reason);
    }
    if (reason) {
        return {};
    }
    OpenedDatabase opened = OpenWithoutWriting(path, waitMs, reason);
    const int version = opened.connection == nullptr ? LatestVersion() : VersionOf(*opened.connection);
    if (version == LatestVersion()) {
        return opened;
    }
    opened.connection.reset();
    if (!MayBeWritten(path)) {
        reason = OlderReason(path, version, LatestVersion());
        return {};
    }
    Repair(path, reason);
    return reason ? OpenedDatabase() : OpenWithoutWriting(path, waitMs, reason);
}

} // namespace

OpenedDatabase OpenForReading(const QString& path, DatabaseReason& reason, int waitMs)
{
    DatabaseReason found = CheckFile(path);
    OpenedDatabase opened;
    try {
        if (!found) {
            opened = OpenRepaired(path, waitMs, found);
        }
    } catch (const SqlFault& fault) {
        opened.connection.reset();
        found = ReasonOf(path, fault);
    }
    if (found) {
        reason = found;
    }
    return opened;
}

std::unique_ptr<Connection> OpenForWriting(const QString& path, DatabaseReason& reason, int waitMs)
{
    DatabaseReason found = CheckFile(path);
    std::unique_ptr<Connection> connection;
    try {
        if (!found && !MayBeWritten(path)) {
            found = ReadOnlyReason(path);
        }
        if (!found) {
            connection = OpenWritable(path, waitMs, found);
        }
        if (connection != nullptr) {
            connection->Run(QStringLiteral("PRAGMA journal_mode = WAL"));
        }
    } catch (const SqlFault& fault) {
        connection.reset();
        found = ReasonOf(path, fault);
    }
    if (found) {
        reason = found;
    }
    return connection;
}

} // namespace componentdatabase
