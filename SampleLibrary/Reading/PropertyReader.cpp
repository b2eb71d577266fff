#include "Reading/PropertyReader.h"

#include "Reading/ParameterReader.h"
#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <tuple>

namespace samplelibrary {

namespace {

/// What a measure type of the standard means for a parameter.
struct Measure
{
    ValueKind Kind;
    std::string Unit;
    std::string Group;
};

/// What the library adds to a property of the standard.
struct PropertyNote
{
    BilingualText Name;
    std::string Unit;
};

bool IsUpper(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

ValueKind KindOf(const std::string& type)
{
    if (type == "Number") {
        return ValueKind::Number;
    }
    if (type == "Integer") {
        return ValueKind::Integer;
    }
    return type == "Logic" ? ValueKind::Logic : ValueKind::Text;
}

std::map<std::string, Measure> ReadMeasures(const SourceFiles& files)
{
    const TsvTable table("ifc/measures.tsv", files.Text("ifc/measures.tsv"));
    std::map<std::string, Measure> measures;
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        measures[table.Cell(row, "measure")] = {
            KindOf(table.Cell(row, "type")), table.Cell(row, "unit"), table.Cell(row, "group")};
    }
    return measures;
}

std::map<std::string, PropertyNote> ReadNotes(const SourceFiles& files)
{
    const TsvTable table("ifc/properties.tsv", files.Text("ifc/properties.tsv"));
    std::map<std::string, PropertyNote> notes;
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const std::string& property = table.Cell(row, "property");
        const std::string& english = table.Cell(row, "en");
        notes[property] = {
            {table.Cell(row, "zh"), english == "-" ? SpacedName(property) : english}, table.Cell(row, "unit")};
    }
    return notes;
}

void ReadAliases(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("ifc/trade-parameters.tsv", files.Text("ifc/trade-parameters.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        for (const std::string& code : Split(table.Cell(row, "parameters"), ' ')) {
            if (source.Parameters.count(code) == 0) {
                throw SourceError(table.Where(row), "there is no parameter \"" + code + '"');
            }
            source.Aliases[table.Cell(row, "property")].insert(code);
        }
    }
}

/// Curves and ranges are texts: a catalogue gives several numbers there.
bool HoldsSeveralNumbers(const std::string& property)
{
    for (const char* word : {"Range", "Curve", "Table", "Labels"}) {
        const std::size_t at = property.find(word);
        if (at != std::string::npos && property != "Range" && property.find("StepValue") == std::string::npos) {
            return true;
        }
    }
    return false;
}

Parameter MakeParameter(
    const std::string& set, const std::string& property, const Measure& measure, const PropertyNote& note)
{
    Parameter parameter;
    parameter.Code = set + '.' + property;
    parameter.Kind =
        measure.Kind == ValueKind::Number && HoldsSeveralNumbers(property) ? ValueKind::Text : measure.Kind;
    parameter.Unit = note.Unit == "-" ? measure.Unit : note.Unit;
    parameter.Group = measure.Group;
    parameter.Name = note.Name;
    parameter.Guid = ParameterGuid(parameter.Code);
    parameter.IsInstance = set.find("Occurrence") != std::string::npos;
    return parameter;
}

template <class Map>
const typename Map::mapped_type& Find(
    const Map& map, const std::string& key, const TsvTable& table, std::size_t row, const char* what)
{
    const auto found = map.find(key);
    if (found == map.end()) {
        throw SourceError(table.Where(row), '"' + key + "\" is not listed in " + what);
    }
    return found->second;
}

} // namespace

std::string SpacedName(const std::string& property)
{
    std::string name;
    for (std::size_t at = 0; at < property.size(); ++at) {
        const bool isStart = at > 0 && IsUpper(property[at]) && !IsUpper(property[at - 1]);
        const bool isWordAfterCapitals = at > 0 && at + 1 < property.size() && IsUpper(property[at]) &&
                                         IsUpper(property[at - 1]) && !IsUpper(property[at + 1]);
        if (isStart || isWordAfterCapitals) {
            name += ' ';
        }
        const bool isPlainWord =
            (isStart || isWordAfterCapitals) && at + 1 < property.size() && !IsUpper(property[at + 1]);
        name += isPlainWord ? Lowered(std::string(1, property[at])) : std::string(1, property[at]);
    }
    return name;
}

void ReadPropertySets(const SourceFiles& files, ProductSource& source)
{
    const std::map<std::string, Measure> measures = ReadMeasures(files);
    const std::map<std::string, PropertyNote> notes = ReadNotes(files);
    ReadAliases(files, source);
    const TsvTable table("ifc/ifc4-property-sets.csv", files.Text("ifc/ifc4-property-sets.csv"), ',');
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const std::string set = table.Cell(row, "property_set").substr(std::string("Pset_").size());
        const std::string& property = table.Cell(row, "property");
        const Parameter parameter =
            MakeParameter(set, property, Find(measures, table.Cell(row, "value_type"), table, row, "ifc/measures.tsv"),
                Find(notes, property, table, row, "ifc/properties.tsv"));
        CheckReferences(parameter, source, table.Where(row));
        source.Properties.Add(table.Cell(row, "element").substr(std::string("Ifc").size()), set, parameter.Code);
        source.Parameters.emplace(parameter.Code, parameter);
    }
}

} // namespace samplelibrary
