#pragma once

#include "ComponentDatabase/Rows/CategoryPropertyRow.h"
#include "ComponentDatabase/Rows/CategoryRow.h"
#include "ComponentDatabase/Rows/ComponentRow.h"
#include "ComponentDatabase/Rows/DisciplineRow.h"
#include "ComponentDatabase/Rows/FamilyTypeRow.h"
#include "ComponentDatabase/Rows/LegendRow.h"
#include "ComponentDatabase/Sql/Connection.h"

#include <memory>
#include <vector>

namespace componentdatabase {

/// Writes component databases: new ones as a whole, and additions to existing ones. The same calls in the same order
/// give the same bytes of a new file. Every member throws SqlFault. Belongs to the thread that made it.
class DatabaseWriter
{
public:
    /// Makes the file @p path, which must not exist. It has no journal meanwhile: without Finish() it is worthless.
    static DatabaseWriter Make(const QString& path);

    /// Adds to an existing database that OpenForWriting has opened. Without Finish() nothing is changed.
    explicit DatabaseWriter(std::unique_ptr<Connection> connection);
    ~DatabaseWriter();
    DatabaseWriter(DatabaseWriter&&) noexcept;
    DatabaseWriter& operator=(DatabaseWriter&&) = delete;

    /// The folder of the legends' pictures, relative to the database's own.
    void SetLegendFolder(const QString& folder);

    void AddDiscipline(const DisciplineRow& discipline);
    /// REQUIRES: its discipline and the category above are there.
    void AddCategory(const CategoryRow& category);
    void AddProperty(const PropertyRow& property);
    void AddPropertyValue(qint64 propertyId, const PropertyValueRow& value);
    /// Gives a category a property with those of the property's values that occur in it; of the property only the id
    /// counts.
    void AddCategoryProperty(qint64 categoryId, const CategoryPropertyRow& property);
    void AddLegend(const LegendRow& legend);
    void AddComponent(const ComponentRow& component, const std::vector<FamilyTypeRow>& types);

    /// Fills the search tables and writes everything.
    void Finish();

private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};

} // namespace componentdatabase
