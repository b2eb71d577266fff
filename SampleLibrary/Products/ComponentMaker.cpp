#include "Products/ComponentMaker.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <utility>

namespace samplelibrary {

namespace {

/// A catalogue lives: some components have been revised, a few are on their way out.
int VersionOf(std::size_t index)
{
    return 1 + static_cast<int>(index * 7 % 5);
}

const char* StatusOf(std::size_t index)
{
    return index % 29 == 28 ? "deprecated" : "released";
}

std::string Numbered(const std::string& stem, std::size_t index)
{
    std::array<char, 24> digits{};
    std::snprintf(digits.data(), digits.size(), "-%03zu", index + 1);
    return stem + digits.data();
}

std::string ValueLabel(const Parameter& parameter, const Unit& unit, const std::string& value, Language language)
{
    const bool isNothing = value == "0" || value == "false";
    const std::string& label =
        In(language, isNothing && !parameter.ZeroLabel.Chinese.empty() ? parameter.ZeroLabel : parameter.Label);
    if (label.empty()) {
        return Trimmed(value + ' ' + unit.Symbol);
    }
    // Pressure classes are named in bar and kept in megapascals.
    const std::string tenfold = NumberText(ParsedNumber(value).value_or(0.0) * 10.0, 1);
    return Replaced(Replaced(label, "{x10}", tenfold), "{}", value);
}

std::vector<std::size_t> CombinationsWithTypes(LineEvaluator& line)
{
    std::vector<std::size_t> combinations;
    for (std::size_t combination = 0; combination < line.CombinationCount(); ++combination) {
        line.SelectCombination(combination, 1);
        if (line.HasTypes()) {
            combinations.push_back(combination);
        }
    }
    return combinations;
}

} // namespace

ComponentMaker::ComponentMaker(
    const ProductSource& source, const EndCategory& category, BilingualText name, std::string idStem)
    : m_source(source), m_category(category), m_name(std::move(name)), m_idStem(std::move(idStem)),
      m_properties(source, category), m_line(source, category), m_combinations(CombinationsWithTypes(m_line)),
      m_reference(m_line.Place("Reference"))
{
    if (m_combinations.empty()) {
        throw SourceError(category.Where, "no combination of the axes has a family type");
    }
    for (const TemplateEntry& entry : m_properties.Entries()) {
        m_places.push_back(m_line.Place(entry.Definition->Code));
    }
}

std::string ComponentMaker::AxisText(std::size_t axis, Language language) const
{
    const Axis& described = m_category.Line.Axes[axis];
    const std::string& value = described.Values[m_line.AxisValues()[axis]];
    const Parameter& parameter = m_source.Parameters.at(described.Parameter);
    if (parameter.Kind == ValueKind::Choice) {
        return In(language, m_source.Enumerations.at(parameter.Enumeration).at(value).Name);
    }
    return ValueLabel(parameter, m_source.Units.at(parameter.Unit), value, language);
}

std::string ComponentMaker::Name(Language language, int series) const
{
    const bool isChinese = language == Language::Chinese;
    std::string name = In(language, m_name);
    for (std::size_t axis = 0; axis < m_category.Line.Axes.size(); ++axis) {
        name += (isChinese ? " " : ", ") + AxisText(axis, language);
    }
    if (series > 1) {
        name += isChinese ? " " + std::to_string(series) + "系列" : ", series " + std::to_string(series);
    }
    return name;
}

std::string ComponentMaker::TypesJson(ComponentRow& row)
{
    nlohmann::ordered_json types = nlohmann::ordered_json::array();
    for (std::size_t size = 0; size < m_line.RowCount(); ++size) {
        if (!m_line.Evaluate(size)) {
            continue;
        }
        row.TypeNames.push_back(m_line.TypeName());
        m_line.Set(m_reference, row.Id + '-' + row.TypeNames.back());
        nlohmann::ordered_json values = nlohmann::ordered_json::array();
        for (const std::size_t place : m_places) {
            const std::string* const text = m_line.Values().Text(place);
            values.push_back(text == nullptr ? nlohmann::ordered_json() : nlohmann::ordered_json(*text));
        }
        types.push_back({{"name", row.TypeNames.back()}, {"values", std::move(values)}});
    }
    return types.dump();
}

void ComponentMaker::CheckTypeNames(const ComponentRow& row) const
{
    std::vector<std::string> names = row.TypeNames;
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    if (twice != names.end()) {
        throw SourceError(m_category.Where, "two family types of " + row.Id + " are named \"" + *twice + '"');
    }
}

ComponentRow ComponentMaker::Make(std::size_t index)
{
    const int series = static_cast<int>(index / m_combinations.size()) + 1;
    m_line.SelectCombination(m_combinations[index % m_combinations.size()], series);
    ComponentRow row;
    row.Id = Numbered(m_idStem, index);
    row.Version = VersionOf(index);
    row.Status = StatusOf(index);
    row.Name = {Name(Language::Chinese, series), Name(Language::English, series)};
    row.FamilyTypes = TypesJson(row);
    CheckTypeNames(row);
    return row;
}

} // namespace samplelibrary
