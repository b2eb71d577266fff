#include "Products/PropertyTemplate.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace samplelibrary {

namespace {

using Json = nlohmann::ordered_json;

bool IsIntermediate(const std::string& name)
{
    return name.front() == '_';
}

const char* ValueTypeText(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Number:
    case ValueKind::Integer:
        return "Number";
    case ValueKind::Logic:
        return "Logic";
    case ValueKind::Choice:
        return "Enum";
    case ValueKind::Text:
        break;
    }
    return "String";
}

const char* ParameterTypeText(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Number:
        return "Double";
    case ValueKind::Integer:
        return "Int";
    case ValueKind::Logic:
        return "Bool";
    case ValueKind::Choice:
    case ValueKind::Text:
        break;
    }
    return "String";
}

std::string DisplayTypeText(ValueKind kind, const Unit& unit)
{
    switch (kind) {
    case ValueKind::Logic:
        return "YesOrNo";
    case ValueKind::Choice:
        return "ValueList";
    case ValueKind::Text:
        return "Text";
    case ValueKind::Integer:
    case ValueKind::Number:
        break;
    }
    return unit.DisplayType;
}

Json AllowedValues(const TemplateEntry& entry, const ProductSource& source, Language language)
{
    Json values = Json::object();
    for (const std::string& key : entry.AllowedKeys) {
        values[key] = In(language, source.Enumerations.at(entry.Definition->Enumeration).at(key).Name);
    }
    return values;
}

Json Definition(const TemplateEntry& entry, const ProductSource& source, Language language)
{
    const Parameter& parameter = *entry.Definition;
    const Unit& unit = source.Units.at(parameter.Unit);
    return Json{{"code", parameter.Code}, {"formula", entry.Formula},
        {"groupName", In(language, source.Groups.at(parameter.Group))}, {"id", parameter.Guid},
        {"isDriveParameter", parameter.IsDriveParameter && !entry.IsComputed}, {"isEssential", parameter.IsEssential},
        {"isGeometry", parameter.IsGeometry}, {"isInstance", parameter.IsInstance},
        {"isOutputParameter", entry.IsComputed}, {"isStandard", true}, {"name", In(language, parameter.Name)},
        {"parameterDisplayType", DisplayTypeText(parameter.Kind, unit)},
        {"parameterType", ParameterTypeText(parameter.Kind)}, {"unit", unit.Symbol}, {"unitCode", unit.Code},
        {"valueType", ValueTypeText(parameter.Kind)}, {"values", AllowedValues(entry, source, language)},
        {"isBuildIn", parameter.IsBuildIn}, {"isShared", true}, {"isFromFile", parameter.IsGeometry}};
}

/// Properties of the standard have their set before a dot.
bool IsOfStandard(const std::string& code)
{
    return code.find('.') != std::string::npos;
}

bool HasPlace(const std::string& expression)
{
    return expression.find('{') != std::string::npos;
}

void CheckKeys(const ProductSource& source, const EndCategory& category, const TemplateEntry& entry)
{
    const Enumeration& known = source.Enumerations.at(entry.Definition->Enumeration);
    for (const std::string& key : entry.AllowedKeys) {
        if (known.count(key) == 0) {
            throw SourceError(category.Where, '"' + key + "\" is no value of " + entry.Definition->Code);
        }
    }
}

/// Keys of an enumeration that can occur as values: those of its axis, its constant or its column; all of them
/// otherwise.
std::set<std::string> OccurringKeys(
    const ProductSource& source, const EndCategory& category, const Parameter& parameter)
{
    for (const Assignment& value : category.Line.Values) {
        if (value.Target == parameter.Code && !HasPlace(value.Expression)) {
            return {value.Expression};
        }
    }
    for (const Axis& axis : category.Line.Axes) {
        if (axis.Parameter == parameter.Code) {
            return {axis.Values.begin(), axis.Values.end()};
        }
    }
    std::set<std::string> keys;
    const TsvTable& table = source.SizeTables.at(category.Line.SizeTable);
    const std::vector<std::string>& columns = table.Columns();
    const bool isColumn = std::find(columns.begin(), columns.end(), parameter.Code) != columns.end();
    for (std::size_t row = 0; isColumn && row < table.RowCount(); ++row) {
        keys.insert(table.Cell(row, parameter.Code));
    }
    if (!isColumn) {
        for (const auto& [key, entry] : source.Enumerations.at(parameter.Enumeration)) {
            keys.insert(key);
        }
    }
    return keys;
}

} // namespace

PropertyTemplate::PropertyTemplate(const ProductSource& source, const EndCategory& category) : m_source(source)
{
    if (source.SizeTables.count(category.Line.SizeTable) == 0) {
        throw SourceError(category.Where, "there is no size table \"" + category.Line.SizeTable + '"');
    }
    for (const std::string& code : source.CommonParameters) {
        Add(code);
    }
    AddProductParameters(category);
    AddStandardProperties(category);
    SetAllowedKeys(category);
    SetFormulas(category);
    CheckNames(category);
}

void PropertyTemplate::Add(const std::string& code)
{
    const auto found = m_source.Parameters.find(code);
    if (!IsIntermediate(code) && found != m_source.Parameters.end() && m_codes.insert(code).second) {
        m_entries.push_back({&found->second, {}, {}, false});
    }
}

void PropertyTemplate::AddProductParameters(const EndCategory& category)
{
    for (const std::string& column : m_source.SizeTables.at(category.Line.SizeTable).Columns()) {
        Add(column);
    }
    for (const Axis& axis : category.Line.Axes) {
        Add(axis.Parameter);
    }
    for (const Assignment& value : category.Line.Values) {
        if (!IsOfStandard(value.Target)) {
            Add(value.Target);
        }
    }
}

bool PropertyTemplate::IsSaidAlready(const std::string& property) const
{
    const auto aliases = m_source.Aliases.find(property);
    const std::set<std::string> none;
    const std::set<std::string>& same = aliases == m_source.Aliases.end() ? none : aliases->second;
    const BilingualText& name = m_source.Parameters.at(property).Name;
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const TemplateEntry& entry) {
        const BilingualText& taken = entry.Definition->Name;
        return same.count(entry.Definition->Code) != 0 || taken.Chinese == name.Chinese ||
               taken.English == name.English;
    });
}

void PropertyTemplate::AddStandardProperties(const EndCategory& category)
{
    const Kind& kind = m_source.Kinds[category.Kind];
    for (const std::string& code :
        m_source.Properties.ParameterCodes(kind, category.PredefinedType, category.Line.PropertySets)) {
        if (!IsSaidAlready(code)) {
            Add(code);
        }
    }
}

TemplateEntry* PropertyTemplate::Find(const std::string& code)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
        [&code](const TemplateEntry& entry) { return entry.Definition->Code == code; });
    return found == m_entries.end() ? nullptr : &*found;
}

void PropertyTemplate::SetAllowedKeys(const EndCategory& category)
{
    for (TemplateEntry& entry : m_entries) {
        if (entry.Definition->Kind == ValueKind::Choice) {
            entry.AllowedKeys = OccurringKeys(m_source, category, *entry.Definition);
            CheckKeys(m_source, category, entry);
        }
    }
}

void PropertyTemplate::SetFormulas(const EndCategory& category)
{
    for (const Assignment& value : category.Line.Values) {
        TemplateEntry* const entry = IsIntermediate(value.Target) ? nullptr : Find(value.Target);
        if (entry == nullptr || !entry->Definition->IsNumeric() || ParsedNumber(value.Expression)) {
            continue;
        }
        entry->IsComputed = true;
        // What depends on intermediate numbers cannot be worked out again from the parameters alone.
        if (value.Expression.find('_') == std::string::npos) {
            entry->Formula = value.Expression;
        }
    }
}

void PropertyTemplate::CheckNames(const EndCategory& category) const
{
    std::set<std::string> names;
    for (const TemplateEntry& entry : m_entries) {
        const BilingualText& name = entry.Definition->Name;
        if (!names.insert("zh " + name.Chinese).second || !names.insert("en " + name.English).second) {
            throw SourceError(category.Where, "two parameters are named \"" + name.Chinese + "\" or \"" + name.English +
                                                  "\", the second is " + entry.Definition->Code);
        }
    }
}

std::string PropertyTemplate::Definitions(Language language) const
{
    Json definitions = Json::array();
    for (const TemplateEntry& entry : m_entries) {
        definitions.push_back(Definition(entry, m_source, language));
    }
    return definitions.dump();
}

} // namespace samplelibrary
