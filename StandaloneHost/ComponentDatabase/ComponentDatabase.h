#pragma once

#include "ComponentDatabase/DatabaseReason.h"
#include "ComponentDatabase/Rows/CategoryPropertyRow.h"
#include "ComponentDatabase/Rows/CategoryRow.h"
#include "ComponentDatabase/Rows/ComponentRow.h"
#include "ComponentDatabase/Rows/DisciplineRow.h"
#include "ComponentDatabase/Rows/FamilyTypeRow.h"
#include "ComponentDatabase/Rows/LegendRow.h"
#include "ComponentDatabase/Search/SearchResult.h"

#include <optional>
#include <vector>

namespace componentdatabase {

/// A component database that is open for reading.
///
/// Knows nothing of SQL in its interface, so that programs load the database's code only when they open one. Each
/// reading function takes a reason, fills it when the file lets it down (damaged behind the checks, locked, gone bad)
/// and then gives what it gives for nothing found; it leaves the reason alone on success. Usable from several threads.
class ComponentDatabase
{
public:
    virtual ~ComponentDatabase() = default;
    ComponentDatabase(const ComponentDatabase&) = delete;
    ComponentDatabase& operator=(const ComponentDatabase&) = delete;

    /// The disciplines by sort index.
    virtual std::vector<DisciplineRow> Disciplines(DatabaseReason& reason) const = 0;

    /// All categories, those above before those beneath, else by sort index.
    virtual std::vector<CategoryRow> Categories(DatabaseReason& reason) const = 0;

    /// The properties of a category by sort index; none for an unknown one.
    virtual std::vector<CategoryPropertyRow> Properties(qint64 categoryId, DatabaseReason& reason) const = 0;

    /// The legends of the category with that code in one view, by id.
    virtual std::vector<LegendRow> Legends(const QString& categoryCode, int view, DatabaseReason& reason) const = 0;

    /// The folder of the legends' pictures, relative to the database's own.
    virtual QString LegendFolder(DatabaseReason& reason) const = 0;

    /// The component with that code.
    virtual std::optional<ComponentRow> Component(const QString& code, DatabaseReason& reason) const = 0;

    /// The family types of a component in their order.
    virtual std::vector<FamilyTypeRow> FamilyTypes(qint64 componentId, DatabaseReason& reason) const = 0;

    /// What matches the text, best first, then in the order of the tree and the catalogue.
    ///
    /// The words of the text, between blanks, all have to occur; a word that ends in a letter also stands for longer
    /// ones. Case and width of letters do not matter. docs/database.md tells the rules.
    /// @param text as typed; nothing in it is an operator
    /// @param most number of hits at most
    virtual SearchResult Search(const QString& text, int most, DatabaseReason& reason) const = 0;

protected:
    ComponentDatabase() = default;
};

} // namespace componentdatabase
