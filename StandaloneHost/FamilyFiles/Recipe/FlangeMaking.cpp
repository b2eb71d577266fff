#include "FamilyFiles/Recipe/FlangeMaking.h"

#include "FamilyFiles/Recipe/LoopMaking.h"
#include "FamilyFiles/Recipe/PlaceMaking.h"
#include "FamilyFiles/Recipe/ProfileChecks.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

namespace familyfiles {

namespace {

/// Bolt holes straddle the upright axis unless they are turned.
void AddBoltHoles(Profile& disc, const RecipeValue& bolts, const MemberValues& values)
{
    const std::size_t count = values.Count(*bolts.Find("count"));
    const double circle = values.Number(*bolts.Find("circle"));
    const Loop hole = Placed(CircleLoop(values.Number(*bolts.Find("diameter")) / 2), {0, circle / 2}, 0);
    const double step = 360.0 / static_cast<double>(std::max<std::size_t>(count, 1));
    const double turn = values.Number(bolts, "turn", step / 2);
    for (std::size_t i = 0; i < count; ++i) {
        disc.holes.push_back(Placed(hole, {}, turn + step * static_cast<double>(i)));
    }
}

PlanStep Disc(const Frame& face, double back, Profile section, double length)
{
    Frame place = face;
    place.origin = face.origin - face.w * back;
    return {{}, {}, PrismShape{place, std::move(section), length}};
}

} // namespace

std::vector<PlanStep> MakeFlange(const RecipeValue& members, const MemberValues& values)
{
    const double radius = values.Number(*members.Find("diameter")) / 2;
    const double thickness = values.Number(*members.Find("thickness"));
    const double bore = values.Number(members, "bore", 0);
    const Frame face = PlaceOf(members, values, 0);
    std::vector<Loop> bores;
    if (bore > 0) {
        bores.push_back(CircleLoop(bore / 2));
    }
    double raised = 0;
    std::vector<PlanStep> steps;
    if (const RecipeValue* front = members.Find("face")) {
        raised = values.Number(*front->Find("height"));
        Profile ring{CircleLoop(values.Number(*front->Find("diameter")) / 2), bores};
        CheckHoles(ring);
        steps.push_back(Disc(face, raised, std::move(ring), raised));
    }
    if (raised >= thickness) {
        throw RecipeFailure(
            "geometry.out-of-range", "The raised face is thicker than its flange", "法兰凸面高度大于法兰厚度");
    }
    Profile disc{CircleLoop(radius), bores};
    if (const RecipeValue* bolts = members.Find("bolts")) {
        AddBoltHoles(disc, *bolts, values);
    }
    CheckHoles(disc);
    steps.insert(steps.begin(), Disc(face, thickness, std::move(disc), thickness - raised));
    return steps;
}

} // namespace familyfiles
