#include "FamilyFiles/Recipe/PlanMaking.h"

#include "FamilyFiles/Recipe/CombiningSteps.h"
#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/PlanSize.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/ShapeMaking.h"

#include <utility>

namespace familyfiles {

namespace {

void CheckRequirements(const RecipeContent& content, const Scope& scope)
{
    for (const RecipeRequirement& requirement : content.requirements) {
        Reason reason;
        const std::optional<double> isMet = content.formulas[requirement.formula].Number(scope, reason);
        if (!isMet) {
            throw RecipeFailure(reason);
        }
        if (*isMet == 0) {
            throw RecipeFailure("geometry.require", requirement.text.english, requirement.text.chinese);
        }
    }
}

/// Works out one step after the other.
class PlanMaker
{
public:
    PlanMaker(const RecipeContent& content, const Scope& scope) : m_content(content), m_values(content, scope) {}

    ShapePlan Make()
    {
        for (const RecipeStep& step : m_content.steps) {
            m_bodies.push_back(MakeNamed(step));
        }
        m_plan.result = m_bodies[m_content.result];
        if (m_plan.result.empty()) {
            throw RecipeFailure("geometry.empty", "Nothing is left of the shape", "形状为空");
        }
        m_plan.solidCount = m_values.Count(m_content.solidCount);
        m_plan.material = m_content.material;
        m_plan.camera = Camera();
        AddCentreLines();
        CheckSize(m_plan);
        return std::move(m_plan);
    }

private:
    std::vector<std::size_t> MakeNamed(const RecipeStep& step)
    {
        try {
            return MakeBody(step);
        } catch (const RecipeFailure& failure) {
            Reason reason = failure.Why();
            reason.subject = step.name;
            reason.english = "Step " + step.name + ": " + reason.english;
            reason.chinese = "步骤 " + step.name + "：" + reason.chinese;
            throw RecipeFailure(reason);
        }
    }

    std::vector<std::size_t> MakeBody(const RecipeStep& step)
    {
        const RecipeValue* when = step.members.Find("when");
        if (when != nullptr && !m_values.IsTrue(*when)) {
            return {};
        }
        std::vector<PlanStep> solids = MakeSolidSteps(step, m_values);
        if (solids.empty()) {
            return MakeCombined(step);
        }
        std::vector<std::size_t> bodies;
        for (PlanStep& solid : solids) {
            bodies.push_back(Add(std::move(solid), step));
        }
        return bodies;
    }

    std::vector<std::size_t> MakeCombined(const RecipeStep& step)
    {
        CombinedStep combined = Combine(step, m_values, m_bodies);
        if (combined.outcome == CombinedStep::Outcome::Step) {
            return {Add(std::move(combined.step), step)};
        }
        return std::move(combined.bodies);
    }

    std::size_t Add(PlanStep planned, const RecipeStep& step)
    {
        planned.name = step.name;
        if (const RecipeValue* material = step.members.Find("color")) {
            planned.material = material->text;
        }
        m_plan.steps.push_back(std::move(planned));
        return m_plan.steps.size() - 1;
    }

    Point3 Camera() const
    {
        if (m_content.camera.kind == RecipeValue::Kind::List) {
            return m_values.Axis(m_content.camera);
        }
        const std::string& word = m_content.camera.text;
        if (word == "front") {
            return Normalised({0.45, -1.4, 0.5});
        }
        if (word == "top") {
            return Normalised({0.3, -0.6, 1.5});
        }
        if (word == "low") {
            return Normalised({0.8, -1.2, -0.7});
        }
        return Normalised({1, -1.2, 0.9});
    }

    void AddCentreLines()
    {
        for (const RecipeValue& line : m_content.centreLines) {
            const RecipeValue* when = line.Find("when");
            if (when == nullptr || m_values.IsTrue(*when)) {
                m_plan.centreLines.push_back(MakeCentreLine(line));
            }
        }
    }

    CentreLine MakeCentreLine(const RecipeValue& line) const
    {
        CentreLine result;
        if (line.Find("from") != nullptr && line.Find("to") != nullptr) {
            result.from = m_values.Point(line, "from");
            result.to = m_values.Point(line, "to");
            return result;
        }
        const Point3 at = m_values.Point(line, "at");
        result.direction = m_values.Axis(line, "axis", {0, 0, 1});
        if (const RecipeValue* diameter = line.Find("diameter")) {
            result.isCircle = true;
            result.from = at;
            result.radius = m_values.Number(*diameter) / 2;
            return result;
        }
        const double half = m_values.Number(line, "length", 0) / 2;
        result.from = at - result.direction * half;
        result.to = at + result.direction * half;
        return result;
    }

    const RecipeContent& m_content;
    const MemberValues m_values;
    ShapePlan m_plan;
    StepBodies m_bodies;
};

} // namespace

ShapePlan MakePlan(const RecipeContent& content, const Scope& scope)
{
    CheckRequirements(content, scope);
    return PlanMaker(content, scope).Make();
}

} // namespace familyfiles
