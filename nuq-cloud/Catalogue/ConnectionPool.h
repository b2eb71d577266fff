#pragma once

#include "Catalogue/CatalogueConnection.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <vector>

namespace nuqcloud {

/// Lends connections to the catalogue; there are as many as were ever in use at once. Safe for many threads.
class ConnectionPool
{
public:
    /// A connection for as long as this object lives; it goes back to the pool afterwards.
    class Lease
    {
    public:
        Lease(ConnectionPool& pool, std::unique_ptr<CatalogueConnection> connection);
        ~Lease();
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;

        CatalogueConnection* operator->() const { return m_connection.get(); }

    private:
        ConnectionPool& m_pool;
        std::unique_ptr<CatalogueConnection> m_connection;
    };

    explicit ConnectionPool(std::filesystem::path file);

    /// Opens a further connection when none is free.
    Lease Borrow();

private:
    void GiveBack(std::unique_ptr<CatalogueConnection> connection);

    const std::filesystem::path m_file;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<CatalogueConnection>> m_free;
};

} // namespace nuqcloud
