#include "support/BuiltLibrary.h"

#include "Reading/Texts.h"

#include <gtest/gtest.h>

BuiltLibrary::BuiltLibrary() : BuiltLibrary(SAMPLE_LIBRARY_FOLDER) {}

BuiltLibrary::BuiltLibrary(const std::string& folder)
    : m_folder(folder), m_database(folder + "/catalogue.db", SQLite::OPEN_READONLY)
{
}

std::int64_t BuiltLibrary::Count(const std::string& sql)
{
    return m_database.execAndGet(sql).getInt64();
}

std::vector<std::string> BuiltLibrary::Texts(const std::string& sql)
{
    std::vector<std::string> texts;
    SQLite::Statement query(m_database, sql);
    while (query.executeStep()) {
        texts.push_back(query.getColumn(0).getString());
    }
    return texts;
}

const std::vector<Definition>& BuiltLibrary::Definitions(const std::string& categoryCode, bool isEnglish)
{
    const std::string column = isEnglish ? "definitions_en" : "definitions_zh";
    std::vector<Definition>& definitions = m_definitions[column + categoryCode];
    if (definitions.empty()) {
        SQLite::Statement query(m_database, "SELECT " + column + " FROM property_template WHERE category_code = ?");
        query.bind(1, categoryCode);
        EXPECT_TRUE(query.executeStep()) << "no template for " << categoryCode;
        const nlohmann::json all = nlohmann::json::parse(query.getColumn(0).getString());
        definitions.assign(all.begin(), all.end());
    }
    return definitions;
}

void BuiltLibrary::ForEachComponent(
    const std::string& pattern, const std::function<void(const CatalogueComponent&)>& look)
{
    SQLite::Statement query(m_database,
        "SELECT position, id, category_code, name_zh, name_en, family_types FROM component "
        "WHERE category_code LIKE ? ORDER BY position");
    query.bind(1, pattern);
    while (query.executeStep()) {
        look({query.getColumn(0).getInt64(), query.getColumn(1).getString(), query.getColumn(2).getString(),
            query.getColumn(3).getString(), query.getColumn(4).getString(),
            nlohmann::json::parse(query.getColumn(5).getString())});
    }
}

void BuiltLibrary::ForEachType(const std::string& pattern,
    const std::function<void(const CatalogueComponent&, const std::string&, const Values&)>& look)
{
    ForEachComponent(pattern, [&](const CatalogueComponent& component) {
        const std::vector<Definition>& definitions = Definitions(component.CategoryCode);
        for (const nlohmann::json& type : component.FamilyTypes) {
            Values values;
            for (std::size_t at = 0; at < definitions.size(); ++at) {
                const nlohmann::json& value = type.at("values").at(at);
                if (!value.is_null()) {
                    values[definitions[at].at("code").get<std::string>()] = value.get<std::string>();
                }
            }
            look(component, type.at("name").get<std::string>(), values);
        }
    });
}

double Number(const Values& values, const std::string& code)
{
    const auto found = values.find(code);
    if (found == values.end()) {
        ADD_FAILURE() << "no value for " << code;
        return 0.0;
    }
    const std::optional<double> number = samplelibrary::ParsedNumber(found->second);
    EXPECT_TRUE(number.has_value()) << code << " is " << found->second;
    return number.value_or(0.0);
}
