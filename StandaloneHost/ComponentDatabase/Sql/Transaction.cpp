#include "ComponentDatabase/Sql/Transaction.h"

#include "ComponentDatabase/Sql/SqlFault.h"

namespace componentdatabase {

Transaction::Transaction(const Connection& connection) : m_connection(connection)
{
    m_connection.Run(QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction()
{
    if (m_isOpen) {
        try {
            m_connection.Run(QStringLiteral("ROLLBACK"));
        } catch (const SqlFault&) {
            // The engine has taken it back already.
        }
    }
}

void Transaction::Commit()
{
    m_connection.Run(QStringLiteral("COMMIT"));
    m_isOpen = false;
}

} // namespace componentdatabase
