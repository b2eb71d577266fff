#include "ComponentDatabase/Sql/Statement.h"

#include "ComponentDatabase/Sql/SqlFault.h"

#include <QSqlError>

namespace componentdatabase {

Statement::Statement(const Connection& connection, const QString& sql) : m_query(connection.Handle())
{
    m_query.setForwardOnly(true);
    if (!m_query.prepare(sql)) {
        ThrowLastError();
    }
}

void Statement::Execute()
{
    if (!m_query.exec()) {
        ThrowLastError();
    }
}

bool Statement::Next()
{
    if (m_query.next()) {
        return true;
    }
    if (m_query.lastError().isValid()) {
        ThrowLastError();
    }
    return false;
}

qint64 Statement::Number(int column) const
{
    return m_query.value(column).toLongLong();
}

QString Statement::Text(int column) const
{
    return m_query.value(column).toString();
}

bool Statement::IsNull(int column) const
{
    return m_query.isNull(column);
}

void Statement::ThrowLastError() const
{
    const QSqlError error = m_query.lastError();
    throw SqlFault(error.nativeErrorCode().toInt() & 0xff, error.databaseText());
}

} // namespace componentdatabase
