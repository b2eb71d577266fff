#include "ComponentDatabase/Reading/PropertyReading.h"

#include "ComponentDatabase/Sql/Statement.h"

#include <QHash>

namespace componentdatabase {

namespace {

using Values = QHash<qint64, std::vector<PropertyValueRow>>;

CategoryPropertyRow RowOf(const Statement& rows)
{
    PropertyRow property{rows.Number(0), rows.Text(1), rows.Text(2), {rows.Text(3), rows.Text(4)},
        {rows.Text(5), rows.Text(6)}, rows.Number(7) != 0, rows.Number(8) != 0, static_cast<qint16>(rows.Number(9)),
        static_cast<qint16>(rows.Number(10)), rows.Text(11), rows.Text(12)};
    return {std::move(property), static_cast<int>(rows.Number(13)), rows.Number(14) != 0, rows.Text(15), {}};
}

Values ReadValues(const Connection& connection, qint64 categoryId)
{
    Statement rows(connection,
        QStringLiteral("SELECT v.property_id, v.value_id, v.value, v.text_zh, v.text_en FROM category_property_value c "
                       "JOIN property_value v USING (property_id, value_id) WHERE c.category_id = ? "
                       "ORDER BY v.property_id, v.value_id"));
    rows.Run(categoryId);
    Values values;
    while (rows.Next()) {
        values[rows.Number(0)].push_back(
            {static_cast<int>(rows.Number(1)), rows.Text(2), {rows.Text(3), rows.Text(4)}});
    }
    return values;
}

} // namespace

std::vector<CategoryPropertyRow> ReadProperties(const Connection& connection, qint64 categoryId)
{
    const Values values = ReadValues(connection, categoryId);
    Statement rows(connection,
        QStringLiteral("SELECT p.id, p.guid, p.code, p.name_zh, p.name_en, p.group_zh, p.group_en, p.is_instance, "
                       "p.is_essential, p.storage_type, p.display_type, p.unit, p.unit_code, c.sort_index, c.is_input, "
                       "c.formula FROM category_property c JOIN property p ON p.id = c.property_id "
                       "WHERE c.category_id = ? ORDER BY c.sort_index"));
    rows.Run(categoryId);
    std::vector<CategoryPropertyRow> properties;
    while (rows.Next()) {
        properties.push_back(RowOf(rows));
        properties.back().values = values.value(properties.back().property.id);
    }
    return properties;
}

} // namespace componentdatabase
