#include "FamilyFiles/Recipe/CopyMaking.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <cmath>

namespace familyfiles {

namespace {

using Motions = std::vector<Motion>;

Motion Move(const Point3& by)
{
    return {MotionKind::Move, {}, by, 0};
}

std::vector<Motions> Mirrored(const RecipeValue& members, const MemberValues& values)
{
    const Motion mirror{MotionKind::Mirror, values.Point(members, "at"), values.Axis(*members.Find("plane")), 0};
    if (MemberValues::Flag(members, "keep", true)) {
        return {{}, {mirror}};
    }
    return {{mirror}};
}

std::vector<Motions> Linear(const RecipeValue& members, const MemberValues& values)
{
    const std::size_t count = values.Count(*members.Find("count"));
    const RecipeValue* second = members.Find("count2");
    const std::size_t count2 = second == nullptr ? 1 : values.Count(*second);
    const Point3 step = values.Point(*members.Find("step"));
    const Point3 step2 = values.Point(members, "step2");
    if ((count > 1 && Length(step) < RecipeLimits::SmallestLength) ||
        (count2 > 1 && Length(step2) < RecipeLimits::SmallestLength)) {
        throw RecipeFailure("geometry.out-of-range", "The step of a pattern is too small", "阵列间距过小");
    }
    if (count * count2 > RecipeLimits::MostCopies) {
        throw RecipeFailure("recipe.too-many", "A pattern has too many copies", "阵列副本过多");
    }
    std::vector<Motions> copies;
    for (std::size_t j = 0; j < count2; ++j) {
        for (std::size_t i = 0; i < count; ++i) {
            const Point3 by = step * static_cast<double>(i) + step2 * static_cast<double>(j);
            copies.push_back(i + j == 0 ? Motions{} : Motions{Move(by)});
        }
    }
    return copies;
}

std::vector<Motions> Polar(const RecipeValue& members, const MemberValues& values)
{
    const std::size_t count = values.Count(*members.Find("count"));
    const double angle = values.Number(members, "angle", 360);
    const Point3 at = values.Point(members, "at");
    const Point3 axis = values.Axis(members, "axis", {0, 0, 1});
    const bool isFull = angle >= 360 - 1e-9;
    const std::size_t gaps = isFull || count == 1 ? count : count - 1;
    std::vector<Motions> copies;
    for (std::size_t i = 0; i < count; ++i) {
        const double turn = angle * static_cast<double>(i) / static_cast<double>(gaps);
        copies.push_back(i == 0 ? Motions{} : Motions{{MotionKind::Rotate, at, axis, turn}});
    }
    return copies;
}

std::vector<Motions> Transformed(const RecipeValue& members, const MemberValues& values)
{
    Motions motions;
    const double scale = values.Number(members, "scale", 1);
    if (scale != 1) {
        motions.push_back({MotionKind::Scale, {}, {}, scale});
    }
    if (const RecipeValue* rotate = members.Find("rotate")) {
        const double angle = values.Number(*rotate->Find("angle"));
        if (angle != 0) {
            motions.push_back(
                {MotionKind::Rotate, values.Point(*rotate, "at"), values.Axis(*rotate->Find("axis")), angle});
        }
    }
    const Point3 by = values.Point(members, "move");
    if (Length(by) > 0) {
        motions.push_back(Move(by));
    }
    return {motions};
}

} // namespace

std::vector<std::vector<Motion>> MakeMotions(const RecipeStep& step, const MemberValues& values)
{
    if (step.rule->name == "mirror") {
        return Mirrored(step.members, values);
    }
    if (step.rule->name == "linearPattern") {
        return Linear(step.members, values);
    }
    return step.rule->name == "polarPattern" ? Polar(step.members, values) : Transformed(step.members, values);
}

} // namespace familyfiles
