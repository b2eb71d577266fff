#include "FamilyFiles/Recipe/CombiningSteps.h"

#include "FamilyFiles/Recipe/CopyMaking.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

namespace familyfiles {

namespace {

using Bodies = std::vector<std::size_t>;

Bodies BodiesOf(const RecipeValue& references, const StepBodies& bodies)
{
    if (references.kind == RecipeValue::Kind::Step) {
        return bodies[references.index];
    }
    Bodies all;
    for (const RecipeValue& reference : references.items) {
        const Bodies& some = bodies[reference.index];
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

CombinedStep Absent()
{
    return {};
}

CombinedStep Same(Bodies bodies)
{
    return {CombinedStep::Outcome::Same, {}, std::move(bodies)};
}

template <typename Shape>
CombinedStep Made(Shape shape)
{
    return {CombinedStep::Outcome::Step, {{}, {}, std::move(shape)}, {}};
}

CombinedStep Fuse(const RecipeStep& step, const StepBodies& bodies)
{
    Bodies arguments = BodiesOf(*step.members.Find("of"), bodies);
    return arguments.empty() ? Absent() : Made(BooleanStep{BooleanKind::Fuse, std::move(arguments), {}});
}

CombinedStep Cut(const RecipeStep& step, const StepBodies& bodies)
{
    Bodies from = BodiesOf(*step.members.Find("from"), bodies);
    Bodies tools = BodiesOf(*step.members.Find("tools"), bodies);
    if (from.empty()) {
        return Absent();
    }
    if (tools.empty()) {
        return Same(std::move(from));
    }
    return Made(BooleanStep{BooleanKind::Cut, std::move(from), std::move(tools)});
}

/// Each further argument is a body of its own: what lies in all of them remains.
CombinedStep Common(const RecipeStep& step, const StepBodies& bodies)
{
    Bodies arguments = BodiesOf(*step.members.Find("of"), bodies);
    if (arguments.empty()) {
        return Absent();
    }
    if (arguments.size() == 1) {
        return Same(std::move(arguments));
    }
    return Made(BooleanStep{BooleanKind::Common, {arguments.front()}, {arguments.begin() + 1, arguments.end()}});
}

EdgeFilter MakeFilter(const RecipeValue& members, const MemberValues& values)
{
    EdgeFilter filter;
    if (const RecipeValue* along = members.Find("along")) {
        filter.wantsDirection = true;
        filter.direction = values.Axis(*along);
    }
    if (const RecipeValue* kind = members.Find("kind")) {
        filter.wantsLines = kind->text == "line";
        filter.wantsCircles = kind->text == "circle";
        if (filter.wantsLines == filter.wantsCircles) {
            throw RecipeFailure(
                "recipe.wrong-shape", "\"kind\" must be \"line\" or \"circle\"", "“kind”必须是“line”或“circle”");
        }
    }
    if (const RecipeValue* plane = members.Find("plane")) {
        filter.wantsPlane = true;
        filter.planeNormal = values.Axis(*plane);
        filter.planeOffset = values.Number(members, "offset", 0);
    }
    if (const RecipeValue* box = members.Find("inside")) {
        filter.wantsBox = true;
        filter.boxLow = values.Point(box->items[0]);
        filter.boxHigh = values.Point(box->items[1]);
    }
    return filter;
}

CombinedStep TreatEdges(const RecipeStep& step, const MemberValues& values, const StepBodies& bodies)
{
    const bool isFillet = step.rule->name == "fillet";
    EdgeStep treated{isFillet, BodiesOf(*step.members.Find("of"), bodies),
        values.Number(*step.members.Find(isFillet ? "radius" : "distance")), {}};
    if (treated.of.empty()) {
        return Absent();
    }
    if (const RecipeValue* filters = step.members.Find("edges")) {
        for (const RecipeValue& filter : filters->items) {
            treated.filters.push_back(MakeFilter(filter, values));
        }
    }
    return Made(std::move(treated));
}

CombinedStep Copy(const RecipeStep& step, const MemberValues& values, const StepBodies& bodies)
{
    CopyStep copies{BodiesOf(*step.members.Find("of"), bodies), MakeMotions(step, values)};
    return copies.of.empty() ? Absent() : Made(std::move(copies));
}

} // namespace

CombinedStep Combine(const RecipeStep& step, const MemberValues& values, const StepBodies& bodies)
{
    if (step.rule->name == "fuse") {
        return Fuse(step, bodies);
    }
    if (step.rule->name == "cut") {
        return Cut(step, bodies);
    }
    if (step.rule->name == "common") {
        return Common(step, bodies);
    }
    if (step.rule->name == "fillet" || step.rule->name == "chamfer") {
        return TreatEdges(step, values, bodies);
    }
    return Copy(step, values, bodies);
}

} // namespace familyfiles
