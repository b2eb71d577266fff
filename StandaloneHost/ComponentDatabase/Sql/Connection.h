#pragma once

#include <QSqlDatabase>
#include <QString>

namespace componentdatabase {

/// An open SQLite file. Belongs to the thread that made it. Every member throws SqlFault.
class Connection
{
public:
    enum class Access
    {
        ReadOnly,  ///< Never changes the file nor makes one beside it.
        Immutable, ///< As ReadOnly, for a file that nobody writes meanwhile: locks and journals are not looked at.
        ReadWrite, ///< The file must exist.
        Create,    ///< Makes the file if it does not exist.
    };

    /// @param busyMs how long each statement waits for another process's lock
    Connection(const QString& path, Access access, int busyMs);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Runs one statement without values.
    void Run(const QString& sql) const;

    /// The first value of the first row, for pragmas and counts.
    qint64 Number(const QString& sql) const;
    QString Text(const QString& sql) const;

    const QSqlDatabase& Handle() const { return m_database; }

private:
    QString m_name;
    QSqlDatabase m_database;
};

} // namespace componentdatabase
