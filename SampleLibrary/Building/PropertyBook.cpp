#include "Building/PropertyBook.h"

#include "Building/BuildError.h"

#include <nlohmann/json.hpp>

namespace samplelibrary {

namespace {

using Json = nlohmann::ordered_json;
using componentdatabase::BilingualName;
using componentdatabase::PropertyRow;
using componentdatabase::PropertyValueRow;

QString Text(const Json& definition, const char* member)
{
    return QString::fromStdString(definition.at(member).get_ref<const std::string&>());
}

BilingualName Both(const Json& chinese, const Json& english, const char* member)
{
    return {Text(chinese, member), Text(english, member)};
}

qint16 Number(const std::map<std::string, qint16>& numbers, const Json& definition, const char* member)
{
    const auto found = numbers.find(definition.at(member).get_ref<const std::string&>());
    if (found == numbers.end()) {
        throw BuildError(definition.at("code").dump() + ": the host has no number for its " + member);
    }
    return found->second;
}

/// A choice is stored by the number of its value.
qint16 StorageType(const Json& definition)
{
    static const std::map<std::string, qint16> numbers{{"Bool", 3}, {"Int", 4}, {"Double", 5}, {"String", 6}};
    return definition.at("valueType") == "Enum" ? qint16{4} : Number(numbers, definition, "parameterType");
}

qint16 DisplayType(const Json& definition)
{
    static const std::map<std::string, qint16> numbers{{"FollowUnitType", 1}, {"Length", 4}, {"Area", 5}, {"Volume", 6},
        {"Angle", 7}, {"Slope", 8}, {"Number", 9}, {"Text", 10}, {"Density", 12}, {"YesOrNo", 13}, {"Float", 14},
        {"Material", 15}, {"ValueList", 16}, {"StandardCodeReference", 17}, {"Count", 19}};
    return Number(numbers, definition, "parameterDisplayType");
}

PropertyRow Row(qint64 id, const Json& chinese, const Json& english)
{
    return {id, Text(chinese, "id"), Text(chinese, "code"), Both(chinese, english, "name"),
        Both(chinese, english, "groupName"), chinese.at("isInstance").get<bool>(),
        chinese.at("isEssential").get<bool>(), StorageType(chinese), DisplayType(chinese), Text(chinese, "unit"),
        Text(chinese, "unitCode")};
}

} // namespace

PropertyBook::PropertyBook(componentdatabase::DatabaseWriter& writer) : m_writer(writer) {}

PropertyBook::Known& PropertyBook::Property(const Json& chinese, const Json& english)
{
    const auto [place, isNew] = m_properties.try_emplace(chinese.at("id").get<std::string>());
    if (isNew) {
        place->second.id = static_cast<qint64>(m_properties.size());
        m_writer.AddProperty(Row(place->second.id, chinese, english));
    }
    return place->second;
}

std::vector<PropertyValueRow> PropertyBook::Values(Known& property, const Json& chinese, const Json& english)
{
    std::vector<PropertyValueRow> values;
    for (const auto& [key, text] : chinese.items()) {
        const QString value = QString::fromStdString(key);
        const auto [place, isNew] = property.values.try_emplace(value, static_cast<int>(property.values.size()) + 1);
        values.push_back(
            {place->second, value, {QString::fromStdString(text.get<std::string>()), Text(english, key.c_str())}});
        if (isNew) {
            m_writer.AddPropertyValue(property.id, values.back());
        }
    }
    return values;
}

void PropertyBook::AddTemplate(qint64 categoryId, const std::string& chineseText, const std::string& englishText)
{
    const Json chinese = Json::parse(chineseText);
    const Json english = Json::parse(englishText);
    std::vector<qint64>& order = m_templates[categoryId];
    for (std::size_t index = 0; index < chinese.size(); ++index) {
        Known& property = Property(chinese[index], english.at(index));
        order.push_back(property.id);
        componentdatabase::CategoryPropertyRow row;
        row.property.id = property.id;
        row.sortIndex = static_cast<int>(index) + 1;
        row.isInput = !chinese[index].at("isOutputParameter").get<bool>();
        row.formula = Text(chinese[index], "formula");
        row.values = Values(property, chinese[index].at("values"), english.at(index).at("values"));
        m_writer.AddCategoryProperty(categoryId, row);
    }
}

std::vector<componentdatabase::FamilyTypeRow> PropertyBook::FamilyTypes(
    qint64 categoryId, const std::string& json) const
{
    const std::vector<qint64>& order = m_templates.at(categoryId);
    std::vector<componentdatabase::FamilyTypeRow> types;
    for (const Json& type : Json::parse(json)) {
        types.push_back({Text(type, "name"), {}});
        const Json& values = type.at("values");
        for (std::size_t index = 0; index < values.size(); ++index) {
            if (!values[index].is_null()) {
                types.back().values[order.at(index)] = QString::fromStdString(values[index].get<std::string>());
            }
        }
    }
    return types;
}

} // namespace samplelibrary
