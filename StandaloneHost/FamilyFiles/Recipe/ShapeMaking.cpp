#include "FamilyFiles/Recipe/ShapeMaking.h"

#include "FamilyFiles/Recipe/FlangeMaking.h"
#include "FamilyFiles/Recipe/LoopMaking.h"
#include "FamilyFiles/Recipe/LoopSamples.h"
#include "FamilyFiles/Recipe/PathMaking.h"
#include "FamilyFiles/Recipe/PlaceMaking.h"
#include "FamilyFiles/Recipe/ProfileMaking.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace familyfiles {

namespace {

using Solid = decltype(PlanStep::shape);
using MakeSolid = Solid (*)(const RecipeValue&, const MemberValues&);

Solid MakeBox(const RecipeValue& members, const MemberValues& values)
{
    const Point3 size = values.Point(*members.Find("size"));
    const double round = values.Number(members, "round", 0);
    const Frame place = PlaceOf(members, values, size.z);
    const bool isCorner = MemberValues::Flag(members, "corner", false);
    const Point3 corner = isCorner ? Point3{} : Point3{-size.x / 2, -size.y / 2, 0};
    if (round <= 0) {
        return BlockShape{place, corner, size};
    }
    const double side = std::min(size.x, size.y);
    if (2 * round > side * (1 + 1e-12)) {
        throw RecipeFailure(
            "geometry.failed", "The rounding is larger than half the smaller side", "圆角大于短边的一半");
    }
    const Loop outline = RectangleLoop(size.x, size.y, std::min(round, side / 2));
    return PrismShape{place, {Placed(outline, {corner.x + size.x / 2, corner.y + size.y / 2}, 0), {}}, size.z};
}

Solid MakeCylinder(const RecipeValue& members, const MemberValues& values)
{
    const double length = values.Number(*members.Find("length"));
    return CylinderShape{
        PlaceOf(members, values, length), values.Radius(members), length, values.Number(members, "angle", 360)};
}

Solid MakePipe(const RecipeValue& members, const MemberValues& values)
{
    const double length = values.Number(*members.Find("length"));
    const double radius = values.Radius(members);
    const RecipeValue* wall = members.Find("wall");
    const RecipeValue* bore = members.Find("bore");
    if ((wall == nullptr) == (bore == nullptr)) {
        throw RecipeFailure(
            "recipe.missing-member", "Either \"wall\" or \"bore\" must be given", "必须给出“wall”或“bore”之一");
    }
    const double inner = bore != nullptr ? values.Number(*bore) / 2 : radius - values.Number(*wall);
    if (2 * inner < RecipeLimits::SmallestLength) {
        throw RecipeFailure("geometry.wall", "The wall is thicker than the radius", "壁厚大于半径");
    }
    if (inner >= radius) {
        throw RecipeFailure("geometry.wall", "The bore leaves no wall", "内径过大，没有留下管壁");
    }
    return PrismShape{PlaceOf(members, values, length), {CircleLoop(radius), {CircleLoop(inner)}}, length};
}

Solid MakeCone(const RecipeValue& members, const MemberValues& values)
{
    const double length = values.Number(*members.Find("length"));
    const double radius = values.Radius(members);
    const double endRadius = values.Radius(members, "2");
    if (radius == 0 && endRadius == 0) {
        throw RecipeFailure("geometry.out-of-range", "A cone needs a radius", "圆锥至少一端半径应大于零");
    }
    return ConeShape{PlaceOf(members, values, length), radius, endRadius, length};
}

Solid MakeSphere(const RecipeValue& members, const MemberValues& values)
{
    return SphereShape{values.Point(members, "at"), values.Radius(members)};
}

Solid MakeDome(const RecipeValue& members, const MemberValues& values)
{
    const double radius = values.Radius(members);
    const double depth = values.Number(members, "depth", radius);
    return DomeShape{PlaceOf(members, values, depth), radius, depth};
}

Solid MakeTorus(const RecipeValue& members, const MemberValues& values)
{
    const double radius = values.Radius(members);
    const double section = values.Number(*members.Find("thickness")) / 2;
    if (section >= radius * (1 - 1e-9)) {
        throw RecipeFailure("geometry.self-intersection", "A ring is thicker than its radius", "圆环截面大于环半径");
    }
    return TorusShape{PlaceOf(members, values, 0), radius, section, values.Number(members, "angle", 360)};
}

Solid MakePrism(const RecipeValue& members, const MemberValues& values)
{
    const double length = values.Number(*members.Find("length"));
    return PrismShape{PlaceOf(members, values, length), MakeProfile(*members.Find("profile"), values), length};
}

Solid MakeRevolved(const RecipeValue& members, const MemberValues& values)
{
    RevolvedShape revolved{PlaceOf(members, values, 0), MakeProfile(*members.Find("profile"), values),
        values.Number(members, "angle", 360)};
    const PlaneBox box = BoxOf(SamplesOf(revolved.section.outline));
    if (box.low.u < -1e-9) {
        throw RecipeFailure("geometry.self-intersection", "A profile reaches across the axis it is turned about",
            "旋转轮廓越过了旋转轴");
    }
    return revolved;
}

Solid MakeSwept(const RecipeValue& members, const MemberValues& values)
{
    return MakeSweep(members, values);
}

Solid MakeLofted(const RecipeValue& members, const MemberValues& values)
{
    return MakeLoft(members, values);
}

struct SolidMaker
{
    std::string_view operation;
    MakeSolid make;
};

constexpr std::array<SolidMaker, 11> kMakers{{
    {"box", MakeBox},
    {"cylinder", MakeCylinder},
    {"pipe", MakePipe},
    {"cone", MakeCone},
    {"sphere", MakeSphere},
    {"dome", MakeDome},
    {"torus", MakeTorus},
    {"extrude", MakePrism},
    {"revolve", MakeRevolved},
    {"sweep", MakeSwept},
    {"loft", MakeLofted},
}};

} // namespace

std::vector<PlanStep> MakeSolidSteps(const RecipeStep& step, const MemberValues& values)
{
    if (step.rule->name == "flange") {
        return MakeFlange(step.members, values);
    }
    const auto* const maker = std::find_if(kMakers.begin(), kMakers.end(),
        [&step](const SolidMaker& candidate) { return candidate.operation == step.rule->name; });
    if (maker == kMakers.end()) {
        return {};
    }
    return {PlanStep{{}, {}, maker->make(step.members, values)}};
}

} // namespace familyfiles
