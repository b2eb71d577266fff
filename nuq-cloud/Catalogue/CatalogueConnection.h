#pragma once

#include "Catalogue/Category.h"
#include "Catalogue/Records.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace nuqcloud {

/// One read-only connection to the catalogue with its prepared statements. For one thread at a time.
///
/// Every operation throws SQLite::Exception when the file cannot be read.
class CatalogueConnection
{
public:
    explicit CatalogueConnection(const std::filesystem::path& file);

    /// Schema number that the file carries.
    int SchemaVersion();
    std::int64_t ComponentCount();

    std::vector<Category> Categories();
    void ForEachSearchText(const std::function<void(std::string_view)>& visit);

    /// Components at positions first .. last, both included, in order.
    std::vector<ComponentRecord> ComponentsBetween(std::int64_t first, std::int64_t last);
    std::optional<ComponentRecord> ComponentAt(std::int64_t position);
    std::optional<ComponentDetailRecord> ComponentById(const std::string& id);

    /// The category's definitions as a JSON array; empty when it has no template.
    std::optional<BilingualText> PropertyTemplate(const std::string& categoryCode);

    std::int64_t LegendCount(const std::string& categoryCode, int view);
    std::vector<LegendRecord> Legends(
        const std::string& categoryCode, int view, std::int64_t offset, std::int64_t limit);
    std::vector<MappingRecord> Mappings();

    std::vector<ProjectRecord> Projects();
    std::vector<std::uint32_t> ProjectPositions(const std::string& projectId);
    std::optional<ComponentRecord> ProjectComponentAt(const std::string& projectId, std::int64_t position);
    std::optional<ComponentRecord> ProjectComponentById(const std::string& projectId, const std::string& id);
    std::optional<ComponentRecord> ProjectComponentByPublicId(
        const std::string& projectId, const std::string& publicId);

private:
    SQLite::Statement& Prepare(const char* sql);

    SQLite::Database m_database;
    std::unordered_map<const char*, std::unique_ptr<SQLite::Statement>> m_statements;
};

} // namespace nuqcloud
