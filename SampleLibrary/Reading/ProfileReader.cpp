#include "Reading/ProfileReader.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace samplelibrary {

namespace {

using Json = nlohmann::ordered_json;

template <class List, class Member>
auto FindBy(List& list, Member member, const std::string& name)
{
    return std::find_if(list.begin(), list.end(), [&](const auto& entry) { return entry.*member == name; });
}

void RemoveValue(ProductLine& line, const std::string& name)
{
    const auto found = FindBy(line.Values, &Assignment::Target, name);
    if (found != line.Values.end()) {
        line.Values.erase(found);
    }
}

void SetAxis(ProductLine& line, const std::string& name, std::vector<std::string> values)
{
    RemoveValue(line, name);
    const auto found = FindBy(line.Axes, &Axis::Parameter, name);
    if (found == line.Axes.end()) {
        line.Axes.push_back({name, std::move(values)});
    } else {
        found->Values = std::move(values);
    }
}

void SetConstant(ProductLine& line, const std::string& name, const std::string& value)
{
    const auto axis = FindBy(line.Axes, &Axis::Parameter, name);
    if (axis != line.Axes.end()) {
        line.Axes.erase(axis);
    }
    const auto found = FindBy(line.Values, &Assignment::Target, name);
    if (found == line.Values.end()) {
        line.Values.insert(line.Values.begin(), {name, value});
    } else {
        found->Expression = value;
    }
}

void SetFormula(ProductLine& line, const std::string& name, const std::string& expression)
{
    const auto found = FindBy(line.Values, &Assignment::Target, name);
    if (found == line.Values.end()) {
        line.Values.push_back({name, expression});
    } else {
        found->Expression = expression;
    }
}

void ApplyProfile(ProductLine& line, const Json& profile)
{
    line.SizeTable = profile.value("sizes", line.SizeTable);
    line.TypeName = profile.value("type", line.TypeName);
    const Json axes = profile.value("axes", Json::object());
    for (const auto& [name, values] : axes.items()) {
        SetAxis(line, name, values.get<std::vector<std::string>>());
    }
    const Json assignments = profile.value("values", Json::object());
    for (const auto& [name, expression] : assignments.items()) {
        SetFormula(line, name, expression.get<std::string>());
    }
    const Json sets = profile.value("propertySets", Json::array());
    for (const auto& set : sets) {
        line.PropertySets.push_back(set.get<std::string>());
    }
    const Json conditions = profile.value("when", Json::array());
    for (const auto& condition : conditions) {
        line.Conditions.push_back(condition.get<std::string>());
    }
}

/// Makes the line of one profile after those that it extends; the depth limit ends a ring of profiles.
ProductLine MakeLine(const Json& profiles, const std::string& name, const std::string& file, int depth)
{
    const auto found = profiles.find(name);
    if (found == profiles.end() || depth > 8) {
        throw SourceError(file, "the profile \"" + name + "\" is missing or extends itself");
    }
    ProductLine line;
    if (found->contains("extends")) {
        line = MakeLine(profiles, found->at("extends").get<std::string>(), file, depth + 1);
    }
    ApplyProfile(line, *found);
    return line;
}

void ReadProfileFile(const std::string& name, const std::string& text, std::map<std::string, ProductLine>& lines)
{
    const Json profiles = Json::parse(text);
    for (const auto& [profile, content] : profiles.items()) {
        if (!lines.emplace(profile, MakeLine(profiles, profile, name, 0)).second) {
            throw SourceError(name, "the profile \"" + profile + "\" is there already");
        }
    }
}

void ApplyOption(ProductLine& line, const std::string& name, const std::string& value)
{
    if (name == "sizes") {
        line.SizeTable = value;
    } else if (name == "type") {
        line.TypeName = value;
    } else if (name == "when") {
        line.Conditions.push_back(value);
    } else if (name == "propertySets") {
        line.PropertySets = Split(value, ',');
    } else if (value.find('|') != std::string::npos) {
        SetAxis(line, name, Split(value, '|'));
    } else {
        SetConstant(line, name, value);
    }
}

} // namespace

std::map<std::string, ProductLine> ReadProfiles(const SourceFiles& files)
{
    std::map<std::string, ProductLine> lines;
    for (const std::string& name : files.Names("profiles")) {
        try {
            ReadProfileFile(name, files.Text(name), lines);
        } catch (const Json::exception& fault) {
            throw SourceError(name, fault.what());
        }
    }
    return lines;
}

void ApplyOptions(ProductLine& line, const std::string& options, const std::string& where)
{
    for (const std::string& option : Split(options, ';')) {
        const std::size_t sign = option.find('=');
        if (option == "-") {
            continue;
        }
        if (sign == std::string::npos || sign == 0) {
            throw SourceError(where, "the option \"" + option + "\" is not name=value");
        }
        ApplyOption(line, option.substr(0, sign), option.substr(sign + 1));
    }
}

} // namespace samplelibrary
