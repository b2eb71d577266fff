#include "ComponentDatabase/Writing/DatabaseWriter.h"

#include "ComponentDatabase/Schema/Migration.h"
#include "ComponentDatabase/Search/SearchIndexer.h"
#include "ComponentDatabase/Sql/SqlFault.h"
#include "ComponentDatabase/Sql/Statement.h"
#include "ComponentDatabase/Sql/Transaction.h"
#include "ComponentDatabase/Writing/TypeValues.h"

#include <QFileInfo>

namespace componentdatabase {

namespace {

std::unique_ptr<Connection> MakeFile(const QString& path)
{
    if (QFileInfo::exists(path)) {
        throw SqlFault(0, path + QStringLiteral(" is there already"));
    }
    auto connection = std::make_unique<Connection>(path, Connection::Access::Create, 0);
    connection->Run(QStringLiteral("PRAGMA journal_mode = OFF"));
    connection->Run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
    connection->Run(QStringLiteral("PRAGMA synchronous = OFF"));
    connection->Run(QStringLiteral("PRAGMA cache_size = -32768"));
    Migrate(*connection);
    return connection;
}

} // namespace

struct DatabaseWriter::Parts
{
    explicit Parts(std::unique_ptr<Connection> opened)
        : connection(std::move(opened)), transaction(*connection),
          discipline(*connection, QStringLiteral("INSERT INTO discipline VALUES (?, ?, ?, ?, ?)")),
          category(*connection, QStringLiteral("INSERT INTO category VALUES (?, ?, ?, ?, ?, ?, ?)")),
          property(*connection, QStringLiteral("INSERT INTO property VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")),
          propertyValue(*connection, QStringLiteral("INSERT INTO property_value VALUES (?, ?, ?, ?, ?)")),
          categoryProperty(*connection, QStringLiteral("INSERT INTO category_property VALUES (?, ?, ?, ?, ?)")),
          categoryValue(*connection, QStringLiteral("INSERT INTO category_property_value VALUES (?, ?, ?)")),
          legend(*connection, QStringLiteral("INSERT INTO legend VALUES (?, ?, ?, ?)")),
          component(*connection, QStringLiteral("INSERT INTO component VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)")),
          familyType(*connection, QStringLiteral("INSERT INTO family_type VALUES (?, ?, ?)")),
          value(*connection, QStringLiteral("INSERT INTO component_value VALUES (?, ?, ?, ?)"))
    {
    }

    std::unique_ptr<Connection> connection;
    Transaction transaction;
    Statement discipline;
    Statement category;
    Statement property;
    Statement propertyValue;
    Statement categoryProperty;
    Statement categoryValue;
    Statement legend;
    Statement component;
    Statement familyType;
    Statement value;
};

DatabaseWriter DatabaseWriter::Make(const QString& path)
{
    return DatabaseWriter(MakeFile(path));
}

DatabaseWriter::DatabaseWriter(std::unique_ptr<Connection> connection)
    : m_parts(std::make_unique<Parts>(std::move(connection)))
{
}

DatabaseWriter::~DatabaseWriter() = default;
DatabaseWriter::DatabaseWriter(DatabaseWriter&&) noexcept = default;

void DatabaseWriter::SetLegendFolder(const QString& folder)
{
    Statement(*m_parts->connection, QStringLiteral("INSERT OR REPLACE INTO product VALUES ('legend_folder', ?)"))
        .Run(folder);
}

void DatabaseWriter::AddDiscipline(const DisciplineRow& row)
{
    m_parts->discipline.Run(row.id, row.code, row.sortIndex, row.name.chinese, row.name.english);
}

void DatabaseWriter::AddCategory(const CategoryRow& row)
{
    m_parts->category.Run(row.id, row.code, row.disciplineId, row.parentId == 0 ? QVariant() : QVariant(row.parentId),
        row.sortIndex, row.name.chinese, row.name.english);
}

void DatabaseWriter::AddProperty(const PropertyRow& row)
{
    m_parts->property.Run(row.id, row.guid, row.code, row.name.chinese, row.name.english, row.group.chinese,
        row.group.english, row.isInstance, row.isEssential, int{row.storageType}, int{row.displayType}, row.unit,
        row.unitCode);
}

void DatabaseWriter::AddPropertyValue(qint64 propertyId, const PropertyValueRow& row)
{
    m_parts->propertyValue.Run(propertyId, row.id, row.value, row.text.chinese, row.text.english);
}

void DatabaseWriter::AddCategoryProperty(qint64 categoryId, const CategoryPropertyRow& row)
{
    m_parts->categoryProperty.Run(categoryId, row.sortIndex, row.property.id, row.isInput, row.formula);
    for (const PropertyValueRow& value : row.values) {
        m_parts->categoryValue.Run(categoryId, row.property.id, value.id);
    }
}

void DatabaseWriter::AddLegend(const LegendRow& row)
{
    m_parts->legend.Run(row.id, row.categoryId, row.view, row.file);
}

void DatabaseWriter::AddComponent(const ComponentRow& row, const std::vector<FamilyTypeRow>& types)
{
    m_parts->component.Run(row.id, row.code, row.version, row.categoryId, row.name.chinese, row.name.english,
        row.status, row.thumbnail, row.familyFile);
    for (std::size_t index = 0; index < types.size(); ++index) {
        m_parts->familyType.Run(row.id, static_cast<qint64>(index), types[index].name);
    }
    for (const TypeValues& values : ValuesByProperty(types)) {
        m_parts->value.Run(row.id, values.property, values.common, values.each);
    }
}

void DatabaseWriter::Finish()
{
    SearchIndexer(*m_parts->connection).FillAll();
    m_parts->transaction.Commit();
    m_parts.reset();
}

} // namespace componentdatabase
