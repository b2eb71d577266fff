#include "FamilyFiles/Recipe/PlanSize.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <vector>

namespace familyfiles {

namespace {

/// What a step's body consists of.
struct BodySize
{
    std::size_t faces = 0;
    std::size_t copies = 1;
};

std::size_t SidesOf(const Profile& profile)
{
    const auto sides = [](const Loop& loop) { return std::max<std::size_t>(loop.segments.size(), 1); };
    std::size_t sum = sides(profile.outline);
    for (const Loop& hole : profile.holes) {
        sum += sides(hole);
    }
    return sum;
}

/// Estimates each kind of step.
class SizeOf
{
public:
    explicit SizeOf(const std::vector<BodySize>& before) : m_before(before) {}

    BodySize operator()(const BlockShape& /*shape*/) const { return {6}; }
    BodySize operator()(const CylinderShape& /*shape*/) const { return {5}; }
    BodySize operator()(const ConeShape& /*shape*/) const { return {3}; }
    BodySize operator()(const SphereShape& /*shape*/) const { return {1}; }
    BodySize operator()(const DomeShape& /*shape*/) const { return {2}; }
    BodySize operator()(const TorusShape& /*shape*/) const { return {3}; }
    BodySize operator()(const PrismShape& shape) const { return {SidesOf(shape.section) + 2}; }
    BodySize operator()(const RevolvedShape& shape) const { return {SidesOf(shape.section) + 2}; }
    BodySize operator()(const SweptShape& shape) const { return {SidesOf(shape.section) * shape.path.size() + 2}; }

    BodySize operator()(const LoftShape& shape) const
    {
        return {SidesOf(shape.sections.front().section) * shape.sections.size() + 2};
    }

    BodySize operator()(const BooleanStep& step) const
    {
        const BodySize arguments = Sum(step.arguments);
        return {arguments.faces + Sum(step.tools).faces};
    }

    /// Each treated edge becomes a face.
    BodySize operator()(const EdgeStep& step) const { return {Sum(step.of).faces * 3}; }

    BodySize operator()(const CopyStep& step) const
    {
        const BodySize one = Sum(step.of);
        return {one.faces * step.copies.size(), one.copies * step.copies.size()};
    }

private:
    BodySize Sum(const std::vector<std::size_t>& steps) const
    {
        BodySize sum{0, 0};
        for (const std::size_t step : steps) {
            sum.faces += m_before[step].faces;
            sum.copies += m_before[step].copies;
        }
        return sum;
    }

    const std::vector<BodySize>& m_before;
};

void WantAtMost(std::size_t count, std::size_t most, const PlanStep& step, const char* english, const char* chinese)
{
    if (count > most) {
        Reason reason;
        reason.code = "geometry.too-large";
        reason.subject = step.name;
        reason.wanted = std::to_string(count);
        reason.possible = std::to_string(most);
        reason.english =
            "Step " + step.name + ": " + english + " (" + reason.wanted + ", at most " + reason.possible + ')';
        reason.chinese =
            "步骤 " + step.name + "：" + chinese + "（" + reason.wanted + "，最多 " + reason.possible + "）";
        throw RecipeFailure(reason);
    }
}

} // namespace

void CheckSize(const ShapePlan& plan)
{
    std::vector<BodySize> sizes;
    for (const PlanStep& step : plan.steps) {
        sizes.push_back(std::visit(SizeOf(sizes), step.shape));
        WantAtMost(sizes.back().copies, RecipeLimits::MostCopies, step, "too many copies", "副本过多");
        WantAtMost(sizes.back().faces, RecipeLimits::MostFaces, step, "too many faces", "面数过多");
    }
}

} // namespace familyfiles
