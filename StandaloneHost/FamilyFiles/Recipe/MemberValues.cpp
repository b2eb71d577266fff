#include "FamilyFiles/Recipe/MemberValues.h"

#include "FamilyFiles/Recipe/NumberBounds.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <cmath>

namespace familyfiles {

namespace {

/// A direction shorter than this is none.
constexpr double kShortestDirection = 1e-9;

Point3 WordAxis(const std::string& word)
{
    const double sign = word.front() == '-' ? -1 : 1;
    switch (word.back()) {
    case 'X':
        return {sign, 0, 0};
    case 'Y':
        return {0, sign, 0};
    default:
        return {0, 0, sign};
    }
}

} // namespace

MemberValues::MemberValues(const RecipeContent& content, const Scope& scope) : m_content(content), m_scope(scope) {}

double MemberValues::Raw(const RecipeValue& value) const
{
    if (value.kind != RecipeValue::Kind::Formula) {
        return value.number;
    }
    Reason reason;
    const std::optional<double> number = m_content.formulas[value.index].Number(m_scope, reason);
    if (!number) {
        throw RecipeFailure(reason);
    }
    return *number;
}

double MemberValues::Number(const RecipeValue& value) const
{
    const double number = Raw(value);
    CheckNumber(number, value.numberKind, value.name);
    return number;
}

std::size_t MemberValues::Count(const RecipeValue& value) const
{
    return static_cast<std::size_t>(std::lround(Number(value)));
}

bool MemberValues::IsTrue(const RecipeValue& condition) const
{
    return Raw(condition) != 0;
}

Point3 MemberValues::Point(const RecipeValue& list) const
{
    return {Number(list.items[0]), Number(list.items[1]), Number(list.items[2])};
}

Point2 MemberValues::PlanePoint(const RecipeValue& list) const
{
    return {Number(list.items[0]), Number(list.items[1])};
}

Point3 MemberValues::Axis(const RecipeValue& value) const
{
    if (value.kind == RecipeValue::Kind::Word) {
        return WordAxis(value.text);
    }
    const Point3 direction = Point(value);
    if (Length(direction) < kShortestDirection) {
        throw RecipeFailure(
            "geometry.out-of-range", '"' + value.name + "\" has no direction", "“" + value.name + "”没有方向");
    }
    return Normalised(direction);
}

double MemberValues::Number(const RecipeValue& object, std::string_view member, double otherwise) const
{
    const RecipeValue* value = object.Find(member);
    return value == nullptr ? otherwise : Number(*value);
}

Point3 MemberValues::Point(const RecipeValue& object, std::string_view member) const
{
    const RecipeValue* value = object.Find(member);
    return value == nullptr ? Point3{} : Point(*value);
}

Point3 MemberValues::Axis(const RecipeValue& object, std::string_view member, const Point3& otherwise) const
{
    const RecipeValue* value = object.Find(member);
    return value == nullptr ? otherwise : Axis(*value);
}

bool MemberValues::Flag(const RecipeValue& object, std::string_view member, bool otherwise)
{
    const RecipeValue* value = object.Find(member);
    return value == nullptr ? otherwise : value->number != 0;
}

double MemberValues::Radius(const RecipeValue& object, std::string_view suffix) const
{
    const std::string radius = "radius" + std::string(suffix);
    const std::string diameter = "diameter" + std::string(suffix);
    const RecipeValue* given = object.Find(radius);
    const RecipeValue* doubled = object.Find(diameter);
    if ((given == nullptr) == (doubled == nullptr)) {
        throw RecipeFailure("recipe.missing-member", "Either \"" + diameter + "\" or \"" + radius + "\" must be given",
            "必须给出“" + diameter + "”或“" + radius + "”之一");
    }
    return given != nullptr ? Number(*given) : Number(*doubled) / 2;
}

} // namespace familyfiles
