#include "Catalogue/Catalogue.h"

#include <algorithm>

namespace nuqcloud {
namespace {

constexpr int kSchemaVersion = 1;
constexpr std::size_t kRememberedSearches = 16;

void CheckSchema(const LibraryFolder& library, CatalogueConnection& connection)
{
    if (connection.SchemaVersion() != kSchemaVersion) {
        throw DamagedLibrary(library.Path(), "catalogue.db does not carry schema version 1");
    }
}

void CheckNumbers(const LibraryFolder& library, std::int64_t components, std::size_t categories)
{
    if (components != library.ComponentCount() || static_cast<std::int64_t>(categories) != library.CategoryCount()) {
        throw DamagedLibrary(library.Path(), "catalogue.db does not hold what library.json says");
    }
}

} // namespace

Catalogue::Catalogue(const LibraryFolder& library) : m_pool(library.CatalogueFile())
{
    try {
        const auto connection = m_pool.Borrow();
        CheckSchema(library, *connection.operator->());
        m_categories = std::make_unique<CategoryTable>(connection->Categories());
        m_projects = connection->Projects();
        m_componentCount = connection->ComponentCount();
    } catch (const SQLite::Exception& exception) {
        throw DamagedLibrary(library.Path(), std::string("catalogue.db cannot be read (") + exception.what() + ")");
    }
    CheckNumbers(library, m_componentCount, m_categories->All().size());
}

const SearchIndex& Catalogue::Index() const
{
    std::call_once(m_indexOnce, [this] {
        SearchIndex index;
        m_pool.Borrow()->ForEachSearchText([&index](std::string_view text) { index.Add(text); });
        m_index = std::move(index);
    });
    return m_index;
}

std::shared_ptr<const Positions> Catalogue::Search(const std::vector<std::string>& words) const
{
    if (auto remembered = Remembered(words)) {
        return remembered;
    }
    auto found = std::make_shared<const Positions>(Index().Find(words));
    Remember(words, found);
    return found;
}

std::shared_ptr<const Positions> Catalogue::Remembered(const std::vector<std::string>& words) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = std::find_if(
        m_searches.begin(), m_searches.end(), [&](const RememberedSearch& search) { return search.first == words; });
    if (it == m_searches.end()) {
        return nullptr;
    }
    m_searches.splice(m_searches.begin(), m_searches, it);
    return it->second;
}

void Catalogue::Remember(const std::vector<std::string>& words, std::shared_ptr<const Positions> positions) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_searches.emplace_front(words, std::move(positions));
    if (m_searches.size() > kRememberedSearches) {
        m_searches.pop_back();
    }
}

std::shared_ptr<const Positions> Catalogue::ProjectPositions(const std::string& projectId) const
{
    const auto isProject = [&](const ProjectRecord& project) { return project.id == projectId; };
    if (std::none_of(m_projects.begin(), m_projects.end(), isProject)) {
        return nullptr;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::shared_ptr<const Positions>& positions = m_projectPositions[projectId];
    if (!positions) {
        positions = std::make_shared<const Positions>(m_pool.Borrow()->ProjectPositions(projectId));
    }
    return positions;
}

} // namespace nuqcloud
