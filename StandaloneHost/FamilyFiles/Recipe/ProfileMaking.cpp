#include "FamilyFiles/Recipe/ProfileMaking.h"

#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/LoopMaking.h"
#include "FamilyFiles/Recipe/LoopSamples.h"
#include "FamilyFiles/Recipe/ProfileChecks.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <algorithm>

namespace familyfiles {

namespace {

/// An outline and, where the profile has a wall, the opening that it leaves.
struct WalledLoop
{
    Loop outline;
    Loop opening;
    bool isHollow = false;
};

void WantRoom(double wall, double smallerSide)
{
    if (wall > 0 && smallerSide - 2 * wall < RecipeLimits::SmallestLength) {
        throw RecipeFailure("geometry.wall", "The wall is too thick: it leaves no opening", "壁厚过大，没有留下空腔");
    }
}

WalledLoop Rectangle(const RecipeValue& value, const MemberValues& values, double wall)
{
    const double width = values.Number(*value.Find("width"));
    const double height = values.Number(*value.Find("height"));
    const double round = values.Number(value, "round", 0);
    const double side = std::min(width, height);
    WantRoom(wall, side);
    if (2 * round > side * (1 + 1e-12)) {
        throw RecipeFailure(
            "geometry.failed", "The rounding is larger than half the smaller side", "圆角大于短边的一半");
    }
    const double inner = round > wall ? round - wall : 0;
    return {RectangleLoop(width, height, std::min(round, side / 2)),
        wall > 0 ? RectangleLoop(width - 2 * wall, height - 2 * wall, inner) : Loop(), wall > 0};
}

WalledLoop Circle(const RecipeValue& value, const MemberValues& values, double wall)
{
    const double radius = values.Radius(value);
    WantRoom(wall, 2 * radius);
    return {CircleLoop(radius), wall > 0 ? CircleLoop(radius - wall) : Loop(), wall > 0};
}

template <typename MakeLoop>
WalledLoop Sided(const RecipeValue& value, const MemberValues& values, double wall, const MakeLoop& makeLoop)
{
    const double width = values.Number(*value.Find("width"));
    const double height = values.Number(*value.Find("height"));
    WantRoom(wall, std::min(width, height));
    return {makeLoop(width, height), wall > 0 ? makeLoop(width - 2 * wall, height - 2 * wall) : Loop(), wall > 0};
}

WalledLoop Regular(const RecipeValue& value, const MemberValues& values, double wall)
{
    const std::size_t sides = values.Count(*value.Find("sides"));
    const double across = values.Number(*value.Find("across"));
    WantRoom(wall, across);
    return {RegularLoop(sides, across), wall > 0 ? RegularLoop(sides, across - 2 * wall) : Loop(), wall > 0};
}

WalledLoop Polygon(const RecipeValue& value, const MemberValues& values, double wall)
{
    if (wall > 0) {
        throw RecipeFailure("recipe.unknown-member", "A polygon has no \"wall\"", "多边形不能使用“wall”");
    }
    WalledLoop result{PolygonLoop(*value.Find("points"), values), {}, false};
    CheckOutline(result.outline);
    return result;
}

WalledLoop MakeLoops(const RecipeValue& value, const MemberValues& values)
{
    const std::string& shape = value.Find("shape")->text;
    const double wall = values.Number(value, "wall", 0);
    if (shape == "rectangle") {
        return Rectangle(value, values, wall);
    }
    if (shape == "circle") {
        return Circle(value, values, wall);
    }
    if (shape == "ellipse") {
        return Sided(value, values, wall, EllipseLoop);
    }
    if (shape == "oval") {
        return Sided(value, values, wall, OvalLoop);
    }
    return shape == "regular" ? Regular(value, values, wall) : Polygon(value, values, wall);
}

Point2 PlaceOf(const RecipeValue& value, const MemberValues& values)
{
    const RecipeValue* at = value.Find("at");
    return at == nullptr ? Point2{} : values.PlanePoint(*at);
}

void WantRoomForHoles(std::size_t count)
{
    if (count > RecipeLimits::MostHoles) {
        throw RecipeFailure("recipe.too-many",
            "A profile has more than " + std::to_string(RecipeLimits::MostHoles) + " holes",
            "轮廓的孔超过 " + std::to_string(RecipeLimits::MostHoles) + " 个");
    }
}

/// Repeats @p hole on a circle; it turns with its place, the first at the top.
void AddPolar(std::vector<Loop>& holes, const Loop& hole, const RecipeValue& polar, const MemberValues& values)
{
    const std::size_t count = values.Count(*polar.Find("count"));
    const double radius = values.Number(*polar.Find("diameter")) / 2;
    const double turn = values.Number(polar, "turn", 0);
    WantRoomForHoles(holes.size() + count);
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = turn + 360.0 * static_cast<double>(i) / static_cast<double>(count);
        const Loop above = Placed(hole, {0, radius}, 0);
        holes.push_back(Placed(above, {}, angle));
    }
}

void AddGrid(std::vector<Loop>& holes, const Loop& hole, const RecipeValue& grid, const MemberValues& values)
{
    const RecipeValue& counts = *grid.Find("count");
    const std::size_t countU = values.Count(counts.items[0]);
    const std::size_t countV = values.Count(counts.items[1]);
    const Point2 step = values.PlanePoint(*grid.Find("step"));
    WantRoomForHoles(holes.size() + countU * countV);
    for (std::size_t v = 0; v < countV; ++v) {
        for (std::size_t u = 0; u < countU; ++u) {
            holes.push_back(Placed(hole,
                {step.u * (static_cast<double>(u) - static_cast<double>(countU - 1) / 2),
                    step.v * (static_cast<double>(v) - static_cast<double>(countV - 1) / 2)},
                0));
        }
    }
}

std::vector<Loop> RepeatedHole(const RecipeValue& value, const MemberValues& values)
{
    const Loop hole = Placed(MakeLoops(value, values).outline, {}, values.Number(value, "turn", 0));
    std::vector<Loop> repeated;
    if (const RecipeValue* polar = value.Find("polar")) {
        AddPolar(repeated, hole, *polar, values);
    } else if (const RecipeValue* grid = value.Find("grid")) {
        AddGrid(repeated, hole, *grid, values);
    } else {
        repeated.push_back(hole);
    }
    const Point2 at = PlaceOf(value, values);
    for (Loop& loop : repeated) {
        loop = Placed(loop, at, 0);
    }
    return repeated;
}

std::vector<Loop> MakeHoles(const RecipeValue& list, const MemberValues& values)
{
    std::vector<Loop> holes;
    for (const RecipeValue& hole : list.items) {
        const RecipeValue* when = hole.Find("when");
        if (when != nullptr && !values.IsTrue(*when)) {
            continue;
        }
        const std::vector<Loop> repeated = RepeatedHole(hole, values);
        WantRoomForHoles(holes.size() + repeated.size());
        holes.insert(holes.end(), repeated.begin(), repeated.end());
    }
    return holes;
}

} // namespace

Profile MakeProfile(const RecipeValue& value, const MemberValues& values)
{
    const WalledLoop loops = MakeLoops(value, values);
    Profile profile{loops.outline, {}};
    if (const RecipeValue* holes = value.Find("holes")) {
        if (loops.isHollow) {
            throw RecipeFailure("recipe.unknown-member", "A profile has either a \"wall\" or \"holes\"",
                "轮廓只能使用“wall”或“holes”之一");
        }
        profile.holes = MakeHoles(*holes, values);
        CheckHoles(profile);
    } else if (loops.isHollow) {
        profile.holes.push_back(loops.opening);
    }
    const Point2 at = PlaceOf(value, values);
    const double turn = values.Number(value, "turn", 0);
    profile.outline = Placed(profile.outline, at, turn);
    for (Loop& hole : profile.holes) {
        hole = Placed(hole, at, turn);
    }
    return profile;
}

} // namespace familyfiles
