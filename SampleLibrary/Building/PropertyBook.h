#pragma once

#include "ComponentDatabase/Writing/DatabaseWriter.h"

#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace samplelibrary {

/// Turns the catalogue's property templates, which each stand for themselves, into properties that categories share,
/// and reads family types by them.
class PropertyBook
{
public:
    /// @param writer must live longer
    explicit PropertyBook(componentdatabase::DatabaseWriter& writer);

    /// Writes a category's properties, and those of them that are new with their values.
    /// @param chinese, english the template's definitions in both languages, JSON arrays of the same order
    void AddTemplate(qint64 categoryId, const std::string& chinese, const std::string& english);

    /// Reads a component's family types, whose values have the order of its category's template.
    std::vector<componentdatabase::FamilyTypeRow> FamilyTypes(qint64 categoryId, const std::string& json) const;

private:
    struct Known
    {
        qint64 id = 0;
        std::map<QString, int> values; ///< Ids by value.
    };

    Known& Property(const nlohmann::ordered_json& chinese, const nlohmann::ordered_json& english);
    std::vector<componentdatabase::PropertyValueRow> Values(
        Known& property, const nlohmann::ordered_json& chinese, const nlohmann::ordered_json& english);

    componentdatabase::DatabaseWriter& m_writer;
    std::map<std::string, Known> m_properties;         ///< By GUID.
    std::map<qint64, std::vector<qint64>> m_templates; ///< Property ids in order, by category.
};

} // namespace samplelibrary
