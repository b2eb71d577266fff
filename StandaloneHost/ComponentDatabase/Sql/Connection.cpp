#include "ComponentDatabase/Sql/Connection.h"

#include "ComponentDatabase/Sql/SqlFault.h"
#include "ComponentDatabase/Sql/SqliteDriver.h"
#include "ComponentDatabase/Sql/Statement.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QUrl>
#include <atomic>

namespace componentdatabase {

namespace {

QString NextName()
{
    static std::atomic<quint64> last{0};
    return QStringLiteral("componentdatabase-%1").arg(++last);
}

/// A path may hold what ends a path in an address.
QString Address(const QString& path, const char* query)
{
    return QStringLiteral("file:") + QString::fromLatin1(QUrl::toPercentEncoding(path, "/")) +
           QString::fromLatin1(query);
}

QString AddressFor(const QString& path, Connection::Access access)
{
    switch (access) {
    case Connection::Access::ReadOnly:
        return Address(path, "?mode=ro");
    case Connection::Access::Immutable:
        return Address(path, "?mode=ro&immutable=1");
    case Connection::Access::ReadWrite:
        return Address(path, "?mode=rw");
    case Connection::Access::Create:
        break;
    }
    return Address(path, "?mode=rwc");
}

QString OptionsFor(Connection::Access access, int busyMs)
{
    const bool reads = access == Connection::Access::ReadOnly || access == Connection::Access::Immutable;
    return QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1%2")
        .arg(QString::number(busyMs), reads ? QStringLiteral(";QSQLITE_OPEN_READONLY") : QString());
}

} // namespace

Connection::Connection(const QString& path, Access access, int busyMs)
    : m_name(NextName()), m_database(QSqlDatabase::addDatabase(MakeSqliteDriver().release(), m_name))
{
    m_database.setDatabaseName(AddressFor(path, access));
    m_database.setConnectOptions(OptionsFor(access, busyMs));
    if (!m_database.open()) {
        const QSqlError error = m_database.lastError();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
        throw SqlFault(error.nativeErrorCode().toInt() & 0xff, error.databaseText());
    }
}

Connection::~Connection()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

void Connection::Run(const QString& sql) const
{
    Statement(*this, sql).Run();
}

qint64 Connection::Number(const QString& sql) const
{
    Statement statement(*this, sql);
    statement.Run();
    return statement.Next() ? statement.Number(0) : 0;
}

QString Connection::Text(const QString& sql) const
{
    Statement statement(*this, sql);
    statement.Run();
    return statement.Next() ? statement.Text(0) : QString();
}

} // namespace componentdatabase
