#include "Catalogue/CatalogueConnection.h"

#include "Text/PercentEncoding.h"

#include <sqlite3.h>

namespace nuqcloud {
namespace {

const char kCategories[] = "SELECT id, code, parent_id, parent_code, major, name_zh, name_en, weight, first_position, "
                           "component_count FROM category ORDER BY weight, id";
const char kSearchTexts[] = "SELECT search FROM component ORDER BY position";
const char kComponentsBetween[] =
    "SELECT position, id, version, category_code, name_zh, name_en, thumbnail, status, id "
    "FROM component WHERE position BETWEEN ? AND ? ORDER BY position";
const char kComponentById[] =
    "SELECT position, id, version, category_code, name_zh, name_en, thumbnail, status, id, thumbnail_sizes, "
    "family_types FROM component WHERE id = ?";
const char kTemplate[] = "SELECT definitions_zh, definitions_en FROM property_template WHERE category_code = ?";
const char kLegendCount[] = "SELECT count(*) FROM legend WHERE category_code = ?1 AND (?2 < 0 OR view = ?2)";
const char kLegends[] = "SELECT id, view, name_zh, name_en, thumbnail, standard_source FROM legend "
                        "WHERE category_code = ?1 AND (?2 < 0 OR view = ?2) ORDER BY view, id LIMIT ?3 OFFSET ?4";
const char kMappings[] = "SELECT category_id, category_code, component_editor_category_id, names, major "
                         "FROM category_mapping ORDER BY category_id";
const char kProjects[] = "SELECT id, name_zh, name_en FROM project ORDER BY id";
const char kProjectPositions[] = "SELECT position FROM project_component WHERE project_id = ? ORDER BY position";

#define NUQ_PROJECT_COMPONENT                                                                                          \
    "SELECT c.position, p.id, p.version, c.category_code, c.name_zh, c.name_en, c.thumbnail, p.status, "               \
    "p.public_component_id FROM project_component p JOIN component c ON c.id = p.public_component_id "                 \
    "WHERE p.project_id = ? AND "
const char kProjectComponentAt[] = NUQ_PROJECT_COMPONENT "p.position = ?";
const char kProjectComponentById[] = NUQ_PROJECT_COMPONENT "p.id = ?";
const char kProjectComponentByPublicId[] = NUQ_PROJECT_COMPONENT "p.public_component_id = ?";
#undef NUQ_PROJECT_COMPONENT

/// The catalogue never changes while it is served, so no locks and no journal are looked for.
std::string ReadOnlyUri(const std::filesystem::path& file)
{
    return "file:" + PercentEncode(std::filesystem::absolute(file).string(), "/-_.~") + "?mode=ro&immutable=1";
}

ComponentRecord ReadComponent(SQLite::Statement& row)
{
    ComponentRecord component;
    component.position = row.getColumn(0).getInt64();
    component.id = row.getColumn(1).getString();
    component.version = row.getColumn(2).getInt64();
    component.categoryCode = row.getColumn(3).getString();
    component.name = {row.getColumn(4).getString(), row.getColumn(5).getString()};
    component.thumbnail = row.getColumn(6).getString();
    component.status = row.getColumn(7).getString();
    component.publicId = row.getColumn(8).getString();
    return component;
}

std::optional<ComponentRecord> ReadOptionalComponent(SQLite::Statement& row)
{
    if (!row.executeStep()) {
        return std::nullopt;
    }
    return ReadComponent(row);
}

Category ReadCategory(SQLite::Statement& row)
{
    Category category;
    category.id = row.getColumn(0).getInt64();
    category.code = row.getColumn(1).getString();
    category.parentId = row.getColumn(2).getInt64();
    category.parentCode = row.getColumn(3).getString();
    category.major = row.getColumn(4).getInt();
    category.nameZh = row.getColumn(5).getString();
    category.nameEn = row.getColumn(6).getString();
    category.weight = row.getColumn(7).getDouble();
    category.components = {row.getColumn(8).getInt64(), row.getColumn(9).getInt64()};
    return category;
}

LegendRecord ReadLegend(SQLite::Statement& row)
{
    LegendRecord legend;
    legend.id = row.getColumn(0).getInt64();
    legend.view = row.getColumn(1).getInt();
    legend.name = {row.getColumn(2).getString(), row.getColumn(3).getString()};
    legend.thumbnail = row.getColumn(4).getString();
    legend.standardSource = row.getColumn(5).getString();
    return legend;
}

MappingRecord ReadMapping(SQLite::Statement& row)
{
    MappingRecord mapping;
    mapping.categoryId = row.getColumn(0).getInt64();
    mapping.categoryCode = row.getColumn(1).getString();
    mapping.componentEditorCategoryId = row.getColumn(2).getString();
    mapping.names = row.getColumn(3).getString();
    mapping.major = row.getColumn(4).getInt();
    return mapping;
}

template <typename Read>
auto ReadAll(SQLite::Statement& statement, Read read)
{
    std::vector<decltype(read(statement))> rows;
    while (statement.executeStep()) {
        rows.push_back(read(statement));
    }
    return rows;
}

} // namespace

CatalogueConnection::CatalogueConnection(const std::filesystem::path& file)
    : m_database(ReadOnlyUri(file), SQLite::OPEN_READONLY | SQLite::OPEN_URI | SQLite::OPEN_NOMUTEX)
{
}

/// Keyed by the address of the text: each statement has one constant of its own.
SQLite::Statement& CatalogueConnection::Prepare(const char* sql)
{
    std::unique_ptr<SQLite::Statement>& statement = m_statements[sql];
    if (!statement) {
        statement = std::make_unique<SQLite::Statement>(m_database, sql);
    }
    statement->reset();
    statement->clearBindings();
    return *statement;
}

int CatalogueConnection::SchemaVersion()
{
    return m_database.execAndGet("PRAGMA user_version").getInt();
}

std::int64_t CatalogueConnection::ComponentCount()
{
    return m_database.execAndGet("SELECT coalesce(max(position) + 1, 0) FROM component").getInt64();
}

std::vector<Category> CatalogueConnection::Categories()
{
    return ReadAll(Prepare(kCategories), &ReadCategory);
}

void CatalogueConnection::ForEachSearchText(const std::function<void(std::string_view)>& visit)
{
    SQLite::Statement& statement = Prepare(kSearchTexts);
    while (statement.executeStep()) {
        const SQLite::Column column = statement.getColumn(0);
        const char* const text = column.getText();
        visit(std::string_view(text, static_cast<std::size_t>(column.getBytes())));
    }
}

std::vector<ComponentRecord> CatalogueConnection::ComponentsBetween(std::int64_t first, std::int64_t last)
{
    SQLite::Statement& statement = Prepare(kComponentsBetween);
    statement.bind(1, first);
    statement.bind(2, last);
    return ReadAll(statement, &ReadComponent);
}

std::optional<ComponentRecord> CatalogueConnection::ComponentAt(std::int64_t position)
{
    SQLite::Statement& statement = Prepare(kComponentsBetween);
    statement.bind(1, position);
    statement.bind(2, position);
    return ReadOptionalComponent(statement);
}

std::optional<ComponentDetailRecord> CatalogueConnection::ComponentById(const std::string& id)
{
    SQLite::Statement& statement = Prepare(kComponentById);
    statement.bind(1, id);
    if (!statement.executeStep()) {
        return std::nullopt;
    }
    return ComponentDetailRecord{
        ReadComponent(statement), statement.getColumn(9).getString(), statement.getColumn(10).getString()};
}

std::optional<BilingualText> CatalogueConnection::PropertyTemplate(const std::string& categoryCode)
{
    SQLite::Statement& statement = Prepare(kTemplate);
    statement.bind(1, categoryCode);
    if (!statement.executeStep()) {
        return std::nullopt;
    }
    return BilingualText{statement.getColumn(0).getString(), statement.getColumn(1).getString()};
}

std::int64_t CatalogueConnection::LegendCount(const std::string& categoryCode, int view)
{
    SQLite::Statement& statement = Prepare(kLegendCount);
    statement.bind(1, categoryCode);
    statement.bind(2, view);
    statement.executeStep();
    return statement.getColumn(0).getInt64();
}

std::vector<LegendRecord> CatalogueConnection::Legends(
    const std::string& categoryCode, int view, std::int64_t offset, std::int64_t limit)
{
    SQLite::Statement& statement = Prepare(kLegends);
    statement.bind(1, categoryCode);
    statement.bind(2, view);
    statement.bind(3, limit);
    statement.bind(4, offset);
    return ReadAll(statement, &ReadLegend);
}

std::vector<MappingRecord> CatalogueConnection::Mappings()
{
    return ReadAll(Prepare(kMappings), &ReadMapping);
}

std::vector<ProjectRecord> CatalogueConnection::Projects()
{
    return ReadAll(Prepare(kProjects), [](SQLite::Statement& row) {
        return ProjectRecord{
            row.getColumn(0).getString(), {row.getColumn(1).getString(), row.getColumn(2).getString()}};
    });
}

std::vector<std::uint32_t> CatalogueConnection::ProjectPositions(const std::string& projectId)
{
    SQLite::Statement& statement = Prepare(kProjectPositions);
    statement.bind(1, projectId);
    return ReadAll(statement, [](SQLite::Statement& row) { return row.getColumn(0).getUInt(); });
}

std::optional<ComponentRecord> CatalogueConnection::ProjectComponentAt(
    const std::string& projectId, std::int64_t position)
{
    SQLite::Statement& statement = Prepare(kProjectComponentAt);
    statement.bind(1, projectId);
    statement.bind(2, position);
    return ReadOptionalComponent(statement);
}

std::optional<ComponentRecord> CatalogueConnection::ProjectComponentById(
    const std::string& projectId, const std::string& id)
{
    SQLite::Statement& statement = Prepare(kProjectComponentById);
    statement.bind(1, projectId);
    statement.bind(2, id);
    return ReadOptionalComponent(statement);
}

std::optional<ComponentRecord> CatalogueConnection::ProjectComponentByPublicId(
    const std::string& projectId, const std::string& publicId)
{
    SQLite::Statement& statement = Prepare(kProjectComponentByPublicId);
    statement.bind(1, projectId);
    statement.bind(2, publicId);
    return ReadOptionalComponent(statement);
}

} // namespace nuqcloud
