#include "Reading/ParameterReader.h"

#include "Reading/PropertyReader.h"
#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <QUuid>

namespace samplelibrary {

namespace {

void ReadGroups(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("groups.tsv", files.Text("groups.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        source.Groups[table.Cell(row, "code")] = {table.Cell(row, "zh"), table.Cell(row, "en")};
    }
}

void ReadUnits(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("units.tsv", files.Text("units.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const std::string& key = table.Cell(row, "key");
        source.Units[key] = {key, Replaced(table.Cell(row, "symbol"), "-", ""),
            Replaced(table.Cell(row, "code"), "-", ""), table.Cell(row, "display"), table.Integer(row, "decimals")};
    }
}

std::vector<std::pair<std::string, double>> Numbers(const TsvTable& table, std::size_t row)
{
    std::vector<std::pair<std::string, double>> numbers;
    for (const std::string& part : Split(table.Cell(row, "numbers"), ';')) {
        const std::size_t sign = part.find('=');
        const std::optional<double> value =
            sign == std::string::npos ? std::nullopt : ParsedNumber(part.substr(sign + 1));
        if (part != "-" && !value) {
            throw SourceError(table.Where(row), "\"" + part + "\" is not name=number");
        }
        if (value) {
            numbers.emplace_back(part.substr(0, sign), *value);
        }
    }
    return numbers;
}

void ReadEnumerations(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("enumerations.tsv", files.Text("enumerations.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        Enumeration& enumeration = source.Enumerations[table.Cell(row, "enumeration")];
        const bool isNew =
            enumeration
                .emplace(table.Cell(row, "key"),
                    EnumerationEntry{{table.Cell(row, "zh"), table.Cell(row, "en")}, Numbers(table, row)})
                .second;
        if (!isNew) {
            throw SourceError(table.Where(row), "the key \"" + table.Cell(row, "key") + "\" is there already");
        }
    }
}

ValueKind KindOf(const std::string& type)
{
    if (type == "Number" || type == "Integer") {
        return type == "Number" ? ValueKind::Number : ValueKind::Integer;
    }
    if (type == "Logic" || type == "Text") {
        return type == "Logic" ? ValueKind::Logic : ValueKind::Text;
    }
    return ValueKind::Choice;
}

/// A label cell holds one text for both languages, one for each, or one for each and then the same for 0 or false.
void SetLabels(Parameter& parameter, const std::string& cell)
{
    if (cell == "-") {
        return;
    }
    const std::vector<std::string> parts = Split(cell, '|');
    parameter.Label = {parts.front(), parts.size() > 1 ? parts[1] : parts.front()};
    if (parts.size() == 4) {
        parameter.ZeroLabel = {parts[2], parts[3]};
    }
}

void SetFlags(Parameter& parameter, const std::string& flags)
{
    const auto has = [&flags](char flag) { return flags.find(flag) != std::string::npos; };
    parameter.IsEssential = has('E');
    parameter.IsGeometry = has('G');
    parameter.IsDriveParameter = has('D');
    parameter.IsInstance = has('I');
    parameter.IsBuildIn = has('B');
}

Parameter ReadParameter(const TsvTable& table, std::size_t row)
{
    Parameter parameter;
    parameter.Code = table.Cell(row, "code");
    parameter.Kind = KindOf(table.Cell(row, "type"));
    parameter.Unit = table.Cell(row, "unit");
    parameter.Group = table.Cell(row, "group");
    parameter.Name = {table.Cell(row, "zh"), table.Cell(row, "en")};
    SetLabels(parameter, table.Cell(row, "label"));
    parameter.Guid = ParameterGuid(parameter.Code);
    if (parameter.Kind == ValueKind::Choice) {
        parameter.Enumeration = table.Cell(row, "type");
    }
    SetFlags(parameter, table.Cell(row, "flags"));
    return parameter;
}

void ReadTradeParameters(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("parameters.tsv", files.Text("parameters.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const Parameter parameter = ReadParameter(table, row);
        CheckReferences(parameter, source, table.Where(row));
        if (!source.Parameters.emplace(parameter.Code, parameter).second) {
            throw SourceError(table.Where(row), "the parameter \"" + parameter.Code + "\" is there already");
        }
        if (table.Cell(row, "flags").find('C') != std::string::npos) {
            source.CommonParameters.push_back(parameter.Code);
        }
    }
}

} // namespace

void CheckReferences(const Parameter& parameter, const ProductSource& source, const std::string& where)
{
    if (source.Groups.count(parameter.Group) == 0) {
        throw SourceError(where, "there is no group \"" + parameter.Group + '"');
    }
    if (source.Units.count(parameter.Unit) == 0) {
        throw SourceError(where, "there is no unit \"" + parameter.Unit + '"');
    }
    if (parameter.Kind == ValueKind::Choice && source.Enumerations.count(parameter.Enumeration) == 0) {
        throw SourceError(where, "there is no enumeration \"" + parameter.Enumeration + '"');
    }
}

std::string ParameterGuid(const std::string& code)
{
    static const QUuid space(0x6f1d5c1e, 0x3c0b, 0x5a64, 0x9b, 0x0f, 0x2d, 0x6a, 0x51, 0x7e, 0xc8, 0x34);
    return QUuid::createUuidV5(space, QByteArray::fromStdString(code)).toString(QUuid::WithoutBraces).toStdString();
}

void ReadParameters(const SourceFiles& files, ProductSource& source)
{
    ReadGroups(files, source);
    ReadUnits(files, source);
    ReadEnumerations(files, source);
    ReadTradeParameters(files, source);
    ReadPropertySets(files, source);
}

} // namespace samplelibrary
