#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <cstdint>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// A parameter definition as the catalogue holds it.
using Definition = nlohmann::json;

/// Values of a family type by parameter code; parameters without a value are left out.
using Values = std::map<std::string, std::string>;

/// A component row.
struct CatalogueComponent
{
    std::int64_t Position = 0;
    std::string Id;
    std::string CategoryCode;
    std::string NameChinese;
    std::string NameEnglish;
    nlohmann::json FamilyTypes;
};

/// Reads a built library.
class BuiltLibrary
{
public:
    /// The library of the build tree.
    BuiltLibrary();

    explicit BuiltLibrary(const std::string& folder);

    /// Result of a query with one whole number.
    std::int64_t Count(const std::string& sql);

    /// First column of all rows as texts.
    std::vector<std::string> Texts(const std::string& sql);

    /// Definitions of a category in English or Chinese.
    const std::vector<Definition>& Definitions(const std::string& categoryCode, bool isEnglish = true);

    /// Calls @p look for every component whose category code is like @p pattern (SQL LIKE), in order of position.
    void ForEachComponent(const std::string& pattern, const std::function<void(const CatalogueComponent&)>& look);

    /// Calls @p look for every family type of those components, with its values by parameter code.
    void ForEachType(const std::string& pattern,
        const std::function<void(const CatalogueComponent&, const std::string& type, const Values&)>& look);

    SQLite::Database& Database() { return m_database; }
    const std::string& Folder() const { return m_folder; }

private:
    std::string m_folder;
    SQLite::Database m_database;
    std::map<std::string, std::vector<Definition>> m_definitions;
};

/// The number that @p values gives for @p code; a test failure when there is none.
double Number(const Values& values, const std::string& code);
