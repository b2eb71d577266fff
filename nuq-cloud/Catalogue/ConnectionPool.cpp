#include "Catalogue/ConnectionPool.h"

#include <utility>

namespace nuqcloud {

ConnectionPool::Lease::Lease(ConnectionPool& pool, std::unique_ptr<CatalogueConnection> connection)
    : m_pool(pool), m_connection(std::move(connection))
{
}

ConnectionPool::Lease::~Lease()
{
    m_pool.GiveBack(std::move(m_connection));
}

ConnectionPool::ConnectionPool(std::filesystem::path file) : m_file(std::move(file)) {}

ConnectionPool::Lease ConnectionPool::Borrow()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_free.empty()) {
            auto connection = std::move(m_free.back());
            m_free.pop_back();
            return Lease(*this, std::move(connection));
        }
    }
    return Lease(*this, std::make_unique<CatalogueConnection>(m_file));
}

void ConnectionPool::GiveBack(std::unique_ptr<CatalogueConnection> connection)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_free.push_back(std::move(connection));
}

} // namespace nuqcloud
