#include "FamilyFiles/Recipe/MemberReader.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace familyfiles {

namespace {

using nlohmann::json;
using Kind = RecipeValue::Kind;

[[noreturn]] void Refuse(std::string_view name, const std::string& english, const std::string& chinese)
{
    const std::string member(name);
    throw RecipeFailure(
        "recipe.wrong-shape", '"' + member + "\" must be " + english, "“" + member + "”必须是" + chinese);
}

void Want(bool isRight, std::string_view name, const char* english, const char* chinese)
{
    if (!isRight) {
        Refuse(name, english, chinese);
    }
}

void WantAtMost(std::size_t count, std::size_t most, std::string_view name)
{
    if (count > most) {
        const std::string member(name);
        throw RecipeFailure("recipe.too-many", '"' + member + "\" has more than " + std::to_string(most) + " entries",
            "“" + member + "”超过 " + std::to_string(most) + " 项");
    }
}

RecipeValue List()
{
    RecipeValue list;
    list.kind = Kind::List;
    return list;
}

RecipeValue Word(const json& value, std::string_view name)
{
    Want(value.is_string(), name, "a text", "文本");
    RecipeValue word;
    word.kind = Kind::Word;
    word.text = value.get<std::string>();
    return word;
}

RecipeValue Flag(const json& value, std::string_view name)
{
    Want(value.is_boolean(), name, "true or false", "true 或 false");
    RecipeValue flag;
    flag.kind = Kind::Flag;
    flag.number = value.get<bool>() ? 1 : 0;
    return flag;
}

const MemberRule* FindMember(const ObjectRule& rule, const std::string& name)
{
    const auto found = std::find_if(
        rule.members.begin(), rule.members.end(), [&name](const MemberRule& member) { return member.name == name; });
    return found == rule.members.end() ? nullptr : &*found;
}

void WantRequired(const json& object, const ObjectRule& rule)
{
    for (const MemberRule& member : rule.members) {
        if (member.isRequired && !object.contains(std::string(member.name))) {
            const std::string name(member.name);
            throw RecipeFailure("recipe.missing-member", '"' + name + "\" is missing", "缺少“" + name + "”");
        }
    }
}

[[noreturn]] void RefuseUnknown(const std::string& name)
{
    throw RecipeFailure("recipe.unknown-member", '"' + name + "\" is not known here", "此处不能使用“" + name + "”");
}

} // namespace

MemberReader::MemberReader(FormulaTable& formulas, StepFinder findStep)
    : m_formulas(formulas), m_findStep(std::move(findStep))
{
}

RecipeValue MemberReader::ReadObject(const Json& json, const ObjectRule& rule, const std::string& subject)
{
    RecipeValue object;
    object.kind = Kind::Object;
    for (const auto& [name, value] : json.items()) {
        const MemberRule* member = FindMember(rule, name);
        if (member == nullptr) {
            RefuseUnknown(name);
        }
        object.items.push_back(ReadMember(value, *member, subject));
    }
    WantRequired(json, rule);
    return object;
}

RecipeValue MemberReader::ReadMember(const Json& json, const MemberRule& rule, const std::string& subject)
{
    RecipeValue value = ReadShape(json, rule, subject);
    value.name = rule.name;
    return value;
}

RecipeValue MemberReader::ReadShape(const Json& json, const MemberRule& rule, const std::string& subject)
{
    switch (rule.shape) {
    case MemberShape::Number:
        return ReadNumber(json, rule.number, rule.name, subject);
    case MemberShape::Numbers:
        return ReadNumbers(json, rule.count, rule.number, rule.name, subject);
    case MemberShape::Flag:
        return Flag(json, rule.name);
    case MemberShape::Condition: {
        RecipeValue condition;
        condition.kind = Kind::Formula;
        condition.index = m_formulas.AddCondition(Word(json, rule.name).text, subject);
        return condition;
    }
    case MemberShape::Word:
        return Word(json, rule.name);
    case MemberShape::Axis:
        return ReadAxis(json, rule.name, subject);
    case MemberShape::Object:
        Want(json.is_object(), rule.name, "an object", "对象");
        return ReadObject(json, *rule.rule, subject);
    case MemberShape::Profile:
        return ReadProfile(json, false, subject);
    case MemberShape::Profiles: {
        Want(json.is_array(), rule.name, "a list of profiles", "轮廓列表");
        WantAtMost(json.size(), RecipeLimits::MostHoles, rule.name);
        RecipeValue list = List();
        for (const auto& profile : json) {
            list.items.push_back(ReadProfile(profile, true, subject));
        }
        return list;
    }
    case MemberShape::PlanePoints:
        return ReadPoints(json, 2, rule.name, subject);
    case MemberShape::SpacePoints:
        return ReadPoints(json, 3, rule.name, subject);
    case MemberShape::Objects: {
        Want(json.is_array(), rule.name, "a list", "列表");
        WantAtMost(json.size(), RecipeLimits::MostSections, rule.name);
        RecipeValue list = List();
        for (const auto& object : json) {
            Want(object.is_object(), rule.name, "a list of objects", "对象列表");
            list.items.push_back(ReadObject(object, *rule.rule, subject));
        }
        return list;
    }
    case MemberShape::Box: {
        Want(json.is_array() && json.size() == 2, rule.name, "two points", "两个点");
        RecipeValue list = List();
        for (const auto& point : json) {
            list.items.push_back(ReadNumbers(point, 3, NumberKind::Coordinate, rule.name, subject));
        }
        return list;
    }
    case MemberShape::EdgeChoice:
        return ReadEdges(json, subject);
    case MemberShape::Step: {
        RecipeValue step;
        step.kind = Kind::Step;
        step.index = m_findStep(json);
        return step;
    }
    case MemberShape::Steps:
        break;
    }
    return ReadSteps(json);
}

RecipeValue MemberReader::ReadNumber(
    const Json& json, NumberKind kind, std::string_view name, const std::string& subject)
{
    RecipeValue value;
    value.name = name;
    value.numberKind = kind;
    if (json.is_number()) {
        value.number = json.get<double>();
        return value;
    }
    Want(json.is_string(), name, "a number or a formula", "数值或公式");
    value.kind = Kind::Formula;
    value.index = m_formulas.AddNumber(json.get_ref<const std::string&>(), kind, subject);
    return value;
}

RecipeValue MemberReader::ReadNumbers(
    const Json& json, std::size_t count, NumberKind kind, std::string_view name, const std::string& subject)
{
    if (!json.is_array() || json.size() != count) {
        Refuse(name, "a list of " + std::to_string(count) + " numbers or formulas",
            std::to_string(count) + " 个数值或公式的列表");
    }
    RecipeValue list = List();
    for (const auto& item : json) {
        list.items.push_back(ReadNumber(item, kind, name, subject));
    }
    return list;
}

RecipeValue MemberReader::ReadAxis(const Json& json, std::string_view name, const std::string& subject)
{
    if (json.is_array()) {
        return ReadNumbers(json, 3, NumberKind::Component, name, subject);
    }
    RecipeValue axis = Word(json, name);
    static constexpr std::array<std::string_view, 6> words{"X", "-X", "Y", "-Y", "Z", "-Z"};
    Want(std::find(words.begin(), words.end(), axis.text) != words.end(), name,
        "\"X\", \"-X\", \"Y\", \"-Y\", \"Z\", \"-Z\" or three numbers", "“X”“-X”“Y”“-Y”“Z”“-Z”或三个数值");
    return axis;
}

RecipeValue MemberReader::ReadProfile(const Json& json, bool isHole, const std::string& subject)
{
    Want(json.is_object() && json.contains("shape") && json["shape"].is_string(), "profile",
        "an object with a \"shape\"", "带有“shape”的对象");
    const std::string& shape = json["shape"].get_ref<const std::string&>();
    const ObjectRule* rule = FindProfileShape(shape);
    if (rule == nullptr) {
        throw RecipeFailure(
            "recipe.unknown-shape", "There is no profile \"" + shape + '"', "没有名为“" + shape + "”的轮廓");
    }
    for (const char* member : {"wall", "holes"}) {
        if (isHole && json.contains(member)) {
            RefuseUnknown(member);
        }
    }
    for (const char* member : {"polar", "grid", "when"}) {
        if (!isHole && json.contains(member)) {
            RefuseUnknown(member);
        }
    }
    RecipeValue profile = ReadObject(json, *rule, subject);
    profile.name = "profile";
    return profile;
}

RecipeValue MemberReader::ReadPoints(
    const Json& json, std::size_t dimensions, std::string_view name, const std::string& subject)
{
    Want(json.is_array(), name, "a list of points", "点列表");
    WantAtMost(json.size(), dimensions == 2 ? RecipeLimits::MostPoints : RecipeLimits::MostPathPoints, name);
    RecipeValue points = List();
    for (const auto& point : json) {
        points.items.push_back(ReadPoint(point, dimensions, name, subject));
    }
    return points;
}

/// A list of coordinates, perhaps with a radius; or an object with the two points of an arc.
RecipeValue MemberReader::ReadPoint(
    const Json& json, std::size_t dimensions, std::string_view name, const std::string& subject)
{
    if (json.is_object()) {
        static const ObjectRule flat{{}, {{"arc", MemberShape::Numbers, NumberKind::Coordinate, true, 2},
                                             {"to", MemberShape::Numbers, NumberKind::Coordinate, true, 2}}};
        static const ObjectRule deep{{}, {{"arc", MemberShape::Numbers, NumberKind::Coordinate, true, 3},
                                             {"to", MemberShape::Numbers, NumberKind::Coordinate, true, 3}}};
        return ReadObject(json, dimensions == 2 ? flat : deep, subject);
    }
    const bool hasRadius = json.is_array() && json.size() == dimensions + 1;
    Want(hasRadius || (json.is_array() && json.size() == dimensions), name,
        "a list of points: coordinates and, where the corner is round, its radius", "点列表：坐标，圆角处另加半径");
    RecipeValue point = List();
    for (std::size_t i = 0; i < json.size(); ++i) {
        const NumberKind kind = i < dimensions ? NumberKind::Coordinate : NumberKind::NoneLength;
        point.items.push_back(ReadNumber(json[i], kind, name, subject));
    }
    return point;
}

RecipeValue MemberReader::ReadEdges(const Json& json, const std::string& subject)
{
    RecipeValue filters = List();
    if (json.is_string()) {
        Want(json == "all", "edges", "\"all\" or filters", "“all”或筛选条件");
        return filters;
    }
    if (json.is_object()) {
        filters.items.push_back(ReadObject(json, EdgeFilterRule(), subject));
        return filters;
    }
    Want(json.is_array() && !json.empty(), "edges", "\"all\" or filters", "“all”或筛选条件");
    WantAtMost(json.size(), RecipeLimits::MostSections, "edges");
    for (const auto& filter : json) {
        Want(filter.is_object(), "edges", "\"all\" or filters", "“all”或筛选条件");
        filters.items.push_back(ReadObject(filter, EdgeFilterRule(), subject));
    }
    return filters;
}

RecipeValue MemberReader::ReadSteps(const Json& json)
{
    RecipeValue list = List();
    const auto add = [&](const Json& item) {
        RecipeValue step;
        step.kind = Kind::Step;
        step.index = m_findStep(item);
        list.items.push_back(std::move(step));
    };
    if (json.is_array()) {
        WantAtMost(json.size(), RecipeLimits::MostSteps, "of");
        for (const auto& item : json) {
            add(item);
        }
    } else {
        add(json);
    }
    return list;
}

} // namespace familyfiles
