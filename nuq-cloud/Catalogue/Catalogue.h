#pragma once

#include "Catalogue/CategoryTable.h"
#include "Catalogue/ConnectionPool.h"
#include "Catalogue/LibraryFolder.h"
#include "Catalogue/Positions.h"
#include "Catalogue/SearchIndex.h"

#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace nuqcloud {

/// The library's catalogue, open for reading by many threads.
///
/// Categories stand in memory; search texts and projects' positions are read when first asked for. Components
/// of a category are a range of positions, so a page costs its own length whatever the catalogue's size.
class Catalogue
{
public:
    /// Opens and checks the catalogue.
    /// @throws LibraryError when it is damaged or of another version
    explicit Catalogue(const LibraryFolder& library);

    const CategoryTable& Categories() const { return *m_categories; }

    /// All components.
    PositionRange Everything() const { return {0, m_componentCount}; }

    ConnectionPool::Lease Connection() const { return m_pool.Borrow(); }

    /// Components that hold all the words; the last searches are remembered, so that paging does not repeat them.
    std::shared_ptr<const Positions> Search(const std::vector<std::string>& words) const;

    /// A project's components; null when there is no such project.
    std::shared_ptr<const Positions> ProjectPositions(const std::string& projectId) const;

    const std::vector<ProjectRecord>& Projects() const { return m_projects; }

private:
    using RememberedSearch = std::pair<std::vector<std::string>, std::shared_ptr<const Positions>>;

    const SearchIndex& Index() const;
    std::shared_ptr<const Positions> Remembered(const std::vector<std::string>& words) const;
    void Remember(const std::vector<std::string>& words, std::shared_ptr<const Positions> positions) const;

    mutable ConnectionPool m_pool;
    std::unique_ptr<const CategoryTable> m_categories;
    std::vector<ProjectRecord> m_projects;
    std::int64_t m_componentCount = 0;

    mutable std::once_flag m_indexOnce;
    mutable SearchIndex m_index;
    mutable std::mutex m_mutex;
    mutable std::list<RememberedSearch> m_searches;
    mutable std::map<std::string, std::shared_ptr<const Positions>> m_projectPositions;
};

} // namespace nuqcloud
