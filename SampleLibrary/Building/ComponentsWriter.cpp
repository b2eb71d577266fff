#include "Building/ComponentsWriter.h"

#include "Building/BuildError.h"
#include "Building/PropertyBook.h"
#include "ComponentDatabase/Sql/SqlFault.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <map>

namespace samplelibrary {

namespace {

using componentdatabase::BilingualName;
using componentdatabase::DatabaseWriter;

/// Where the catalogue's pictures lie, and among them the legends.
const QString StaticFolder = QStringLiteral("static/");
const QString LegendFolder = QStringLiteral("legends/");

QString Text(const SQLite::Statement& rows, int column)
{
    return QString::fromStdString(rows.getColumn(column).getString());
}

BilingualName Name(const SQLite::Statement& rows, int chinese)
{
    return {Text(rows, chinese), Text(rows, chinese + 1)};
}

/// Goes through the catalogue once.
class Transfer
{
public:
    Transfer(const QString& folder, const std::atomic<bool>& isStopped)
        : m_catalogue((folder + QStringLiteral("/catalogue.db")).toStdString(), SQLite::OPEN_READONLY),
          m_writer(DatabaseWriter::Make(folder + QStringLiteral("/components.db"))), m_properties(m_writer),
          m_isStopped(isStopped)
    {
    }

    void Run()
    {
        AddTree();
        AddProperties();
        AddLegends();
        AddComponents();
        ThrowIfStopped();
        m_writer.Finish();
    }

private:
    void ThrowIfStopped() const
    {
        if (m_isStopped) {
            throw BuildInterrupted();
        }
    }

    void AddTree();
    void AddProperties();
    void AddLegends();
    void AddComponents();

    SQLite::Database m_catalogue;
    DatabaseWriter m_writer;
    PropertyBook m_properties;
    const std::atomic<bool>& m_isStopped;
    std::map<QString, qint64> m_categories; ///< Ids by code.
};

/// The catalogue's display order, which goes through all levels, becomes a place within each level.
void Transfer::AddTree()
{
    std::map<qint64, qint64> disciplines;
    std::map<qint64, int> places;
    SQLite::Statement rows(
        m_catalogue, "SELECT id, code, parent_id, level, name_zh, name_en FROM category ORDER BY weight");
    while (rows.executeStep()) {
        const qint64 id = rows.getColumn(0).getInt64();
        const qint64 parent = rows.getColumn(2).getInt64();
        const int place = ++places[parent];
        if (rows.getColumn(3).getInt() == 0) {
            disciplines[id] = id;
            m_writer.AddDiscipline({id, Text(rows, 1), place, Name(rows, 4)});
            continue;
        }
        disciplines[id] = disciplines.at(parent);
        const bool isEndCategory = rows.getColumn(3).getInt() == 2;
        m_writer.AddCategory({id, Text(rows, 1), disciplines.at(id), isEndCategory ? parent : 0, place, Name(rows, 4)});
        m_categories[Text(rows, 1)] = id;
    }
}

void Transfer::AddProperties()
{
    SQLite::Statement rows(m_catalogue, "SELECT t.category_code, t.definitions_zh, t.definitions_en "
                                        "FROM property_template t JOIN category c ON c.code = t.category_code "
                                        "ORDER BY c.weight");
    while (rows.executeStep()) {
        ThrowIfStopped();
        m_properties.AddTemplate(
            m_categories.at(Text(rows, 0)), rows.getColumn(1).getString(), rows.getColumn(2).getString());
    }
}

void Transfer::AddLegends()
{
    const QString ending = QStringLiteral(".png");
    m_writer.SetLegendFolder((StaticFolder + LegendFolder).chopped(1));
    SQLite::Statement rows(m_catalogue, "SELECT id, category_code, view, thumbnail FROM legend ORDER BY id");
    while (rows.executeStep()) {
        QString file = Text(rows, 3);
        if (!file.startsWith(LegendFolder) || !file.endsWith(ending)) {
            throw BuildError(file.toStdString() + " is no legend's picture");
        }
        file = file.mid(LegendFolder.size()).chopped(ending.size()).replace(QLatin1Char('/'), QLatin1Char('\\'));
        // The host numbers the views from 1, after an unknown one.
        m_writer.AddLegend(
            {rows.getColumn(0).getInt64(), m_categories.at(Text(rows, 1)), rows.getColumn(2).getInt() + 1, file});
    }
}

void Transfer::AddComponents()
{
    SQLite::Statement rows(m_catalogue, "SELECT position, id, version, category_code, name_zh, name_en, status, "
                                        "thumbnail, family_types FROM component ORDER BY position");
    while (rows.executeStep()) {
        ThrowIfStopped();
        const qint64 category = m_categories.at(Text(rows, 3));
        m_writer.AddComponent({rows.getColumn(0).getInt64(), Text(rows, 1), rows.getColumn(2).getInt(), category,
                                  Name(rows, 4), Text(rows, 6), Text(rows, 7), QString()},
            m_properties.FamilyTypes(category, rows.getColumn(8).getString()));
    }
}

} // namespace

void WriteComponents(const QString& folder, const std::atomic<bool>& isStopped)
{
    try {
        Transfer(folder, isStopped).Run();
    } catch (const componentdatabase::SqlFault& fault) {
        throw BuildError(folder.toStdString() + "/components.db cannot be written: " + fault.what());
    }
}

} // namespace samplelibrary
