#pragma once

#include "ComponentDatabase/Sql/Connection.h"

namespace componentdatabase {

/// A transaction that is taken back unless it is committed. It takes the write lock at once, so that what is read in it
/// is still so when it writes.
class Transaction
{
public:
    /// @param connection must live longer. Throws SqlFault.
    explicit Transaction(const Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws SqlFault.
    void Commit();

private:
    const Connection& m_connection;
    bool m_isOpen = true;
};

} // namespace componentdatabase
