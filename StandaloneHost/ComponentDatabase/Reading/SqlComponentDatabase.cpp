#include "ComponentDatabase/Reading/SqlComponentDatabase.h"

#include "ComponentDatabase/Reading/DatabaseReasons.h"
#include "ComponentDatabase/Reading/PropertyReading.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace componentdatabase {

namespace {

/// A folder from a file must not lead out of the library.
bool IsBelow(const QString& folder)
{
    return !folder.isEmpty() && !folder.startsWith(QLatin1Char('/')) && !folder.contains(QLatin1Char('\\')) &&
           !folder.contains(QLatin1Char(':')) && !folder.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

std::vector<FamilyTypeRow> ReadTypes(const Connection& connection, qint64 componentId)
{
    Statement rows(
        connection, QStringLiteral("SELECT name FROM family_type WHERE component_id = ? ORDER BY type_index"));
    rows.Run(componentId);
    std::vector<FamilyTypeRow> types;
    while (rows.Next()) {
        types.push_back({rows.Text(0), {}});
    }
    return types;
}

void SetValues(std::vector<FamilyTypeRow>& types, qint64 property, const QJsonArray& values)
{
    for (int index = 0; index < values.size() && index < static_cast<int>(types.size()); ++index) {
        if (values.at(index).isString()) {
            types[static_cast<std::size_t>(index)].values[property] = values.at(index).toString();
        }
    }
}

void ReadValues(const Connection& connection, qint64 componentId, std::vector<FamilyTypeRow>& types)
{
    Statement rows(connection,
        QStringLiteral("SELECT property_id, value, type_values FROM component_value WHERE component_id = ?"));
    rows.Run(componentId);
    while (rows.Next()) {
        if (rows.IsNull(1)) {
            SetValues(types, rows.Number(0), QJsonDocument::fromJson(rows.Text(2).toUtf8()).array());
            continue;
        }
        for (FamilyTypeRow& type : types) {
            type.values[rows.Number(0)] = rows.Text(1);
        }
    }
}

} // namespace

std::unique_ptr<SqlComponentDatabase> SqlComponentDatabase::Open(
    const QString& path, DatabaseReason& reason, int waitMs)
{
    OpenedDatabase opened = OpenForReading(path, reason, waitMs);
    if (opened.connection == nullptr) {
        return nullptr;
    }
    return std::unique_ptr<SqlComponentDatabase>(new SqlComponentDatabase(path, std::move(opened), waitMs));
}

SqlComponentDatabase::SqlComponentDatabase(const QString& path, OpenedDatabase opened, int waitMs)
    : m_path(path), m_waitMs(waitMs), m_thread(QThread::currentThread()), m_opened(std::move(opened))
{
}

template <class Read>
auto SqlComponentDatabase::With(DatabaseReason& reason, const Read& read) const
    -> decltype(read(std::declval<const Connection&>()))
{
    try {
        if (QThread::currentThread() == m_thread) {
            return read(*m_opened.connection);
        }
        return read(Connection(m_path, m_opened.access, m_waitMs));
    } catch (const SqlFault& fault) {
        reason = ReasonOf(m_path, fault);
    }
    return {};
}

std::vector<DisciplineRow> SqlComponentDatabase::Disciplines(DatabaseReason& reason) const
{
    return With(reason, [](const Connection& connection) {
        Statement rows(connection,
            QStringLiteral("SELECT id, code, sort_index, name_zh, name_en FROM discipline ORDER BY sort_index, id"));
        rows.Run();
        std::vector<DisciplineRow> disciplines;
        while (rows.Next()) {
            disciplines.push_back(
                {rows.Number(0), rows.Text(1), static_cast<int>(rows.Number(2)), {rows.Text(3), rows.Text(4)}});
        }
        return disciplines;
    });
}

std::vector<CategoryRow> SqlComponentDatabase::Categories(DatabaseReason& reason) const
{
    return With(reason, [](const Connection& connection) {
        Statement rows(connection,
            QStringLiteral("SELECT id, code, discipline_id, parent_id, sort_index, name_zh, name_en FROM category "
                           "ORDER BY parent_id IS NOT NULL, sort_index, id"));
        rows.Run();
        std::vector<CategoryRow> categories;
        while (rows.Next()) {
            categories.push_back({rows.Number(0), rows.Text(1), rows.Number(2), rows.Number(3),
                static_cast<int>(rows.Number(4)), {rows.Text(5), rows.Text(6)}});
        }
        return categories;
    });
}

std::vector<CategoryPropertyRow> SqlComponentDatabase::Properties(qint64 categoryId, DatabaseReason& reason) const
{
    return With(reason, [categoryId](const Connection& connection) { return ReadProperties(connection, categoryId); });
}

std::vector<LegendRow> SqlComponentDatabase::Legends(
    const QString& categoryCode, int view, DatabaseReason& reason) const
{
    return With(reason, [&](const Connection& connection) {
        Statement rows(connection,
            QStringLiteral("SELECT l.id, l.category_id, l.file FROM legend l JOIN category c ON c.id = l.category_id "
                           "WHERE c.code = ? AND l.view = ? ORDER BY l.id"));
        rows.Run(categoryCode, view);
        std::vector<LegendRow> legends;
        while (rows.Next()) {
            legends.push_back({rows.Number(0), rows.Number(1), view, rows.Text(2)});
        }
        return legends;
    });
}

QString SqlComponentDatabase::LegendFolder(DatabaseReason& reason) const
{
    const QString folder = With(reason, [](const Connection& connection) {
        return connection.Text(QStringLiteral("SELECT value FROM product WHERE key = 'legend_folder'"));
    });
    return IsBelow(folder) ? folder : QString();
}

std::optional<ComponentRow> SqlComponentDatabase::Component(const QString& code, DatabaseReason& reason) const
{
    return With(reason, [&code](const Connection& connection) {
        Statement rows(connection,
            QStringLiteral("SELECT id, code, version, category_id, name_zh, name_en, status, thumbnail, family_file "
                           "FROM component WHERE code = ?"));
        rows.Run(code);
        if (!rows.Next()) {
            return std::optional<ComponentRow>();
        }
        return std::optional<ComponentRow>({rows.Number(0), rows.Text(1), static_cast<int>(rows.Number(2)),
            rows.Number(3), {rows.Text(4), rows.Text(5)}, rows.Text(6), rows.Text(7), rows.Text(8)});
    });
}

std::vector<FamilyTypeRow> SqlComponentDatabase::FamilyTypes(qint64 componentId, DatabaseReason& reason) const
{
    return With(reason, [componentId](const Connection& connection) {
        std::vector<FamilyTypeRow> types = ReadTypes(connection, componentId);
        ReadValues(connection, componentId, types);
        return types;
    });
}

SearchResult SqlComponentDatabase::Search(const QString& text, int most, DatabaseReason& reason) const
{
    return With(reason, [&](const Connection& connection) {
        if (&connection != m_opened.connection.get()) {
            return SearchReader(connection).Find(text, most);
        }
        if (m_search == nullptr) {
            m_search = std::make_unique<SearchReader>(connection);
        }
        return m_search->Find(text, most);
    });
}

} // namespace componentdatabase
