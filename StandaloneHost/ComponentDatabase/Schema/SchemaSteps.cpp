#include "ComponentDatabase/Schema/SchemaSteps.h"

#include "ComponentDatabase/Schema/Migration.h"
#include "ComponentDatabase/Search/SearchIndexer.h"

namespace componentdatabase {

namespace {

QStringList TreeTables()
{
    return {
        QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId),
        QStringLiteral("CREATE TABLE product (key TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE discipline (id INTEGER PRIMARY KEY, code TEXT NOT NULL UNIQUE, "
                       "sort_index INTEGER NOT NULL, name_zh TEXT NOT NULL, name_en TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE category (id INTEGER PRIMARY KEY, code TEXT NOT NULL UNIQUE, "
                       "discipline_id INTEGER NOT NULL REFERENCES discipline (id), "
                       "parent_id INTEGER REFERENCES category (id), sort_index INTEGER NOT NULL, "
                       "name_zh TEXT NOT NULL, name_en TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE legend (id INTEGER PRIMARY KEY, "
                       "category_id INTEGER NOT NULL REFERENCES category (id), view INTEGER NOT NULL, "
                       "file TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX legend_by_category ON legend (category_id, view)"),
    };
}

QStringList PropertyTables()
{
    return {
        QStringLiteral("CREATE TABLE property (id INTEGER PRIMARY KEY, guid TEXT NOT NULL UNIQUE, code TEXT NOT NULL, "
                       "name_zh TEXT NOT NULL, name_en TEXT NOT NULL, group_zh TEXT NOT NULL, group_en TEXT NOT NULL, "
                       "is_instance INTEGER NOT NULL, is_essential INTEGER NOT NULL, storage_type INTEGER NOT NULL, "
                       "display_type INTEGER NOT NULL, unit TEXT NOT NULL, unit_code TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE property_value (property_id INTEGER NOT NULL REFERENCES property (id), "
                       "value_id INTEGER NOT NULL, value TEXT NOT NULL, text_zh TEXT NOT NULL, text_en TEXT NOT NULL, "
                       "PRIMARY KEY (property_id, value_id)) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE category_property (category_id INTEGER NOT NULL REFERENCES category (id), "
                       "sort_index INTEGER NOT NULL, property_id INTEGER NOT NULL REFERENCES property (id), "
                       "is_input INTEGER NOT NULL, formula TEXT NOT NULL, PRIMARY KEY (category_id, sort_index)) "
                       "WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE category_property_value (category_id INTEGER NOT NULL REFERENCES category (id), "
                       "property_id INTEGER NOT NULL, value_id INTEGER NOT NULL, "
                       "PRIMARY KEY (category_id, property_id, value_id), "
                       "FOREIGN KEY (property_id, value_id) REFERENCES property_value (property_id, value_id)) "
                       "WITHOUT ROWID"),
    };
}

QStringList ComponentTables()
{
    return {
        QStringLiteral("CREATE TABLE component (id INTEGER PRIMARY KEY, code TEXT NOT NULL UNIQUE, "
                       "version INTEGER NOT NULL, category_id INTEGER NOT NULL REFERENCES category (id), "
                       "name_zh TEXT NOT NULL, name_en TEXT NOT NULL, status TEXT NOT NULL, thumbnail TEXT NOT NULL, "
                       "family_file TEXT NOT NULL)"),
        QStringLiteral("CREATE TABLE family_type (component_id INTEGER NOT NULL REFERENCES component (id), "
                       "type_index INTEGER NOT NULL, name TEXT NOT NULL, PRIMARY KEY (component_id, type_index)) "
                       "WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE component_value (component_id INTEGER NOT NULL REFERENCES component (id), "
                       "property_id INTEGER NOT NULL REFERENCES property (id), value TEXT, type_values TEXT, "
                       "PRIMARY KEY (component_id, property_id)) WITHOUT ROWID"),
        QStringLiteral("CREATE VIEW parameter_value AS SELECT t.component_id, t.type_index, v.property_id, "
                       "coalesce(v.value, json_extract(v.type_values, '$[' || t.type_index || ']')) AS value "
                       "FROM family_type t JOIN component_value v USING (component_id) WHERE v.value IS NOT NULL "
                       "OR json_extract(v.type_values, '$[' || t.type_index || ']') IS NOT NULL"),
    };
}

/// The words are cut and folded before they are stored: the table's own tokenizer has only to split at blanks.
QStringList SearchTables()
{
    return {
        QStringLiteral("CREATE TABLE search_entry (id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, "
                       "target INTEGER NOT NULL, code TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX search_entry_by_code ON search_entry (code)"),
        QStringLiteral("CREATE VIRTUAL TABLE search USING fts5(code, name_zh, name_en, pinyin, content, "
                       "tokenize = 'ascii', content = '', columnsize = 0)"),
    };
}

} // namespace

const std::vector<SchemaStep>& SchemaSteps()
{
    static const std::vector<SchemaStep> steps{
        {TreeTables() + PropertyTables(), nullptr},
        {ComponentTables(), nullptr},
        {SearchTables(), [](const Connection& connection) { SearchIndexer(connection).FillAll(); }},
    };
    return steps;
}

} // namespace componentdatabase
