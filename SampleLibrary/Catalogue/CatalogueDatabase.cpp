#include "Catalogue/CatalogueDatabase.h"

#include "Pictures/PicturePaths.h"
#include "Reading/Texts.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/VariadicBind.h>
#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>

namespace samplelibrary {

namespace {

using Json = nlohmann::ordered_json;

SQLite::Database MakeDatabase(const std::string& path, const std::string& schema)
{
    SQLite::Database database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    // No journal: a file whose writing broke off is thrown away as a whole.
    database.exec("PRAGMA page_size = 4096; PRAGMA journal_mode = OFF; PRAGMA locking_mode = EXCLUSIVE;"
                  "PRAGMA synchronous = NORMAL; PRAGMA cache_size = -32768;");
    database.exec(schema);
    return database;
}

template <class... Values>
void Insert(SQLite::Statement& statement, const Values&... values)
{
    statement.reset();
    SQLite::bind(statement, values...);
    statement.exec();
}

std::int64_t Signed(std::size_t number)
{
    return static_cast<std::int64_t>(number);
}

std::string SearchText(const CategoryNode& node, const ComponentRow& row)
{
    std::string text = row.Name.Chinese + ' ' + row.Name.English + ' ' + row.Id + ' ' + node.Code;
    for (const std::string& name : row.TypeNames) {
        text += ' ' + name;
    }
    return Lowered(std::move(text));
}

std::string ThumbnailSizes(const std::string& slug)
{
    Json sizes = Json::array();
    for (const int size : ThumbnailPixels) {
        sizes.push_back({{"size", std::to_string(size)}, {"thumbnails", Json::array({ThumbnailPath(slug, size)})}});
    }
    return sizes.dump();
}

} // namespace

struct CatalogueDatabase::Statements
{
    Statements(const std::string& path, const std::string& schema)
        : Database(MakeDatabase(path, schema)), Transaction(Database),
          Category(Database, "INSERT INTO category VALUES (?,?,?,?,?,?,?,?,?,?,?,?)"),
          Template(Database, "INSERT INTO property_template VALUES (?,?,?)"),
          Legend(Database, "INSERT INTO legend VALUES (?,?,?,?,?,?,?)"),
          Mapping(Database, "INSERT INTO category_mapping VALUES (?,?,?,?,?)"),
          Component(Database, "INSERT INTO component VALUES (?,?,?,?,?,?,?,?,?,?,?)"),
          Project(Database, "INSERT INTO project VALUES (?,?,?)"),
          ProjectComponent(Database, "INSERT INTO project_component VALUES (?,?,?,?,?,?)")
    {
    }

    SQLite::Database Database;
    SQLite::Transaction Transaction;
    SQLite::Statement Category;
    SQLite::Statement Template;
    SQLite::Statement Legend;
    SQLite::Statement Mapping;
    SQLite::Statement Component;
    SQLite::Statement Project;
    SQLite::Statement ProjectComponent;
};

CatalogueDatabase::CatalogueDatabase(const std::string& path, const std::string& schema, const ProductSource& source)
    : m_source(source), m_statements(std::make_unique<Statements>(path, schema))
{
}

CatalogueDatabase::~CatalogueDatabase() = default;

void CatalogueDatabase::AddCategory(const CategoryNode& node, double weight)
{
    const int major = m_source.Disciplines[node.Discipline].Major;
    const std::string slug = node.Level == 0 ? std::string() : m_source.Kinds[node.Kind].Slug;
    Insert(m_statements->Category, node.Id, node.Code, node.ParentId, node.ParentCode, node.Level, major, slug,
        node.Name.Chinese, node.Name.English, weight, Signed(node.FirstPosition), Signed(node.ComponentCount));
    if (node.Level == 2) {
        AddLegends(node);
        AddMapping(node);
    }
}

void CatalogueDatabase::AddLegends(const CategoryNode& node)
{
    static const std::array<BilingualText, 3> viewNames{
        BilingualText{"平面", "plan"}, BilingualText{"立面", "elevation"}, BilingualText{"剖面", "profile"}};
    const std::string& slug = m_source.Kinds[node.Kind].Slug;
    for (std::size_t view = 0; view < viewNames.size(); ++view) {
        const std::int64_t id = std::int64_t{node.Id} * 10 + Signed(view) + 1;
        Insert(m_statements->Legend, id, node.Code, static_cast<int>(view),
            node.Name.Chinese + " " + viewNames[view].Chinese + "图例",
            node.Name.English + ", " + viewNames[view].English, LegendPath(slug, view, "png"),
            m_source.Disciplines[node.Discipline].LegendStandard);
    }
}

void CatalogueDatabase::AddMapping(const CategoryNode& node)
{
    const Kind& kind = m_source.Kinds[node.Kind];
    const int major = m_source.Disciplines[node.Discipline].Major;
    const std::string editorId = std::to_string((major + 1) * 100 + kind.Number) + '.' + kind.Code;
    const Json names =
        Json::array({kind.Name.Chinese + '/' + node.Name.Chinese, kind.Name.English + '/' + node.Name.English});
    Insert(m_statements->Mapping, node.Id, node.Code, editorId, names.dump(), major);
}

void CatalogueDatabase::AddTemplate(const std::string& categoryCode, const BilingualText& definitions)
{
    Insert(m_statements->Template, categoryCode, definitions.Chinese, definitions.English);
}

void CatalogueDatabase::AddComponent(std::size_t position, const CategoryNode& node, const ComponentRow& row)
{
    const std::string& slug = m_source.Kinds[node.Kind].Slug;
    Insert(m_statements->Component, Signed(position), row.Id, row.Version, node.Code, row.Name.Chinese,
        row.Name.English, SearchText(node, row), ThumbnailPath(slug, ListThumbnailPixels), row.Status,
        ThumbnailSizes(slug), row.FamilyTypes);
}

void CatalogueDatabase::AddProject(const Project& project)
{
    Insert(m_statements->Project, project.Id, project.Name.Chinese, project.Name.English);
}

void CatalogueDatabase::AddProjectComponent(
    const Project& project, const ProjectRow& row, const std::string& componentId, std::size_t position)
{
    Insert(m_statements->ProjectComponent, project.Id, row.Id, componentId, row.Version, row.Status, Signed(position));
}

void CatalogueDatabase::Finish()
{
    m_statements->Transaction.commit();
    m_statements.reset();
}

} // namespace samplelibrary
