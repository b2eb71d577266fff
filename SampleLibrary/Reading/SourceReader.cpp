#include "Reading/SourceReader.h"

#include "Reading/ParameterReader.h"
#include "Reading/ProfileReader.h"
#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <algorithm>

namespace samplelibrary {

namespace {

void ReadDisciplines(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("disciplines.tsv", files.Text("disciplines.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        source.Disciplines.push_back({table.Integer(row, "number"), table.Cell(row, "code"),
            table.Integer(row, "major"), {table.Cell(row, "zh"), table.Cell(row, "en")}, table.Cell(row, "legends")});
    }
}

Kind ReadKind(const TsvTable& table, std::size_t row)
{
    Kind kind;
    kind.Number = table.Integer(row, "number");
    kind.Element = table.Cell(row, "element");
    kind.Slug = table.Cell(row, "slug");
    kind.Code = table.Cell(row, "code");
    kind.Name = {table.Cell(row, "zh"), table.Cell(row, "en")};
    kind.Tint = table.Cell(row, "tint");
    kind.PlanSymbol = table.Cell(row, "plan");
    kind.ElevationSymbol = table.Cell(row, "elevation");
    kind.ProfileSymbol = table.Cell(row, "profile");
    return kind;
}

void ReadPredefinedTypes(const SourceFiles& files, ProductSource& source)
{
    const std::string name = "ifc/ifc4-distribution-elements.csv";
    const TsvTable table(name, files.Text(name), ',');
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const std::string element = table.Cell(row, "element").substr(std::string("Ifc").size());
        const auto kind = std::find_if(source.Kinds.begin(), source.Kinds.end(),
            [&element](const Kind& candidate) { return candidate.Element == element; });
        if (kind == source.Kinds.end()) {
            throw SourceError(table.Where(row), "the element is not listed in kinds.tsv");
        }
        kind->PredefinedTypes.push_back(table.Cell(row, "predefined_type"));
    }
}

void ReadKinds(const SourceFiles& files, ProductSource& source)
{
    const TsvTable table("kinds.tsv", files.Text("kinds.tsv"));
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        source.Kinds.push_back(ReadKind(table, row));
    }
    ReadPredefinedTypes(files, source);
}

void ReadSizeTables(const SourceFiles& files, ProductSource& source)
{
    for (const std::string& file : files.Names("sizes")) {
        const std::string name = file.substr(file.find('/') + 1, file.find('.') - file.find('/') - 1);
        source.SizeTables.emplace(name, TsvTable(file, files.Text(file)));
    }
}

template <class List>
std::size_t IndexByCode(const List& list, const std::string& code, const std::string& where)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&code](const auto& candidate) { return candidate.Code == code; });
    if (found == list.end()) {
        throw SourceError(where, "the code \"" + code + "\" is not known");
    }
    return static_cast<std::size_t>(found - list.begin());
}

void CheckPredefinedType(const EndCategory& category, const Kind& kind)
{
    const std::vector<std::string>& types = kind.PredefinedTypes;
    const bool isKnown = category.PredefinedType == "USERDEFINED" ||
                         std::find(types.begin(), types.end(), category.PredefinedType) != types.end();
    if (!isKnown) {
        throw SourceError(category.Where, kind.Element + " has no predefined type \"" + category.PredefinedType + '"');
    }
}

ProductLine FindProfile(
    const std::map<std::string, ProductLine>& profiles, const std::string& name, const std::string& where)
{
    const auto found = profiles.find(name);
    if (found == profiles.end()) {
        throw SourceError(where, "there is no profile \"" + name + '"');
    }
    return found->second;
}

EndCategory ReadEndCategory(const TsvTable& table, std::size_t row, const ProductSource& source,
    const std::map<std::string, ProductLine>& profiles)
{
    EndCategory category;
    category.Where = table.Where(row);
    category.Discipline = IndexByCode(source.Disciplines, table.Cell(row, "discipline"), category.Where);
    category.Kind = IndexByCode(source.Kinds, table.Cell(row, "kind"), category.Where);
    category.Code = table.Cell(row, "code");
    category.PredefinedType = table.Cell(row, "type");
    category.Name = {table.Cell(row, "zh"), table.Cell(row, "en")};
    category.Line = FindProfile(profiles, table.Cell(row, "profile"), category.Where);
    ApplyOptions(category.Line, table.Cell(row, "options"), category.Where);
    CheckPredefinedType(category, source.Kinds[category.Kind]);
    return category;
}

void ReadEndCategories(const SourceFiles& files, ProductSource& source)
{
    const std::map<std::string, ProductLine> profiles = ReadProfiles(files);
    for (const std::string& file : files.Names("end-categories")) {
        const TsvTable table(file, files.Text(file));
        for (std::size_t row = 0; row < table.RowCount(); ++row) {
            source.EndCategories.push_back(ReadEndCategory(table, row, source, profiles));
        }
    }
    std::stable_sort(source.EndCategories.begin(), source.EndCategories.end(),
        [](const EndCategory& left, const EndCategory& right) {
            return std::tie(left.Discipline, left.Kind) < std::tie(right.Discipline, right.Kind);
        });
}

} // namespace

ProductSource ReadSource(const SourceFiles& files)
{
    ProductSource source;
    ReadDisciplines(files, source);
    ReadKinds(files, source);
    ReadParameters(files, source);
    ReadSizeTables(files, source);
    ReadEndCategories(files, source);
    return source;
}

} // namespace samplelibrary
