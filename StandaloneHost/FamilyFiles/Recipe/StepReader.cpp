#include "FamilyFiles/Recipe/StepReader.h"

#include "FamilyFiles/Recipe/Materials.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace familyfiles {

namespace {

using nlohmann::json;

std::string OperationOf(const json& step)
{
    if (!step.is_object() || !step.contains("op") || !step["op"].is_string()) {
        throw RecipeFailure(
            "recipe.missing-member", "A step must be an object with an \"op\"", "步骤必须是带有“op”的对象");
    }
    return step["op"].get<std::string>();
}

[[noreturn]] void RefuseWith(const RecipeFailure& failure, const std::string& step)
{
    Reason reason = failure.Why();
    if (reason.subject.empty()) {
        reason.subject = step;
        reason.english = "Step " + step + ": " + reason.english;
        reason.chinese = "步骤 " + step + "：" + reason.chinese;
    }
    throw RecipeFailure(reason);
}

} // namespace

StepReader::StepReader(RecipeContent& content, FormulaTable& formulas)
    : m_content(content), m_members(formulas, [this](const json& step) { return FindStep(step); })
{
}

void StepReader::Read(const Json& steps, const Json& result)
{
    if (steps.empty()) {
        throw RecipeFailure("recipe.missing-member", "The recipe has no steps", "几何配方没有步骤");
    }
    for (const Json& step : steps) {
        ReadStep(step);
    }
    SetResult(result);
    WantAllUsed();
}

std::size_t StepReader::ReadStep(const Json& json)
{
    if (m_depth == RecipeLimits::DeepestSteps) {
        throw RecipeFailure("recipe.too-deep", "Steps are nested too deeply", "步骤嵌套过深");
    }
    const std::string operation = OperationOf(json);
    const std::string name = NameOf(json, operation);
    if (++m_begun > RecipeLimits::MostSteps) {
        throw RecipeFailure("recipe.too-many",
            "The recipe has more than " + std::to_string(RecipeLimits::MostSteps) + " steps",
            "几何配方超过 " + std::to_string(RecipeLimits::MostSteps) + " 个步骤");
    }
    const ObjectRule* rule = FindOperation(operation);
    if (rule == nullptr) {
        throw RecipeFailure(Reason{"recipe.unknown-operation", name, "There is no operation \"" + operation + '"',
            "没有名为“" + operation + "”的操作"});
    }
    ++m_depth;
    RecipeStep step = ReadMembers(json, *rule, name);
    --m_depth;
    m_content.steps.push_back(std::move(step));
    m_isUsed.push_back(false);
    const std::size_t index = m_content.steps.size() - 1;
    if (json.contains("id") && !m_ids.emplace(json["id"].get<std::string>(), index).second) {
        throw RecipeFailure(Reason{
            "recipe.duplicate-id", name, "The id \"" + name + "\" is taken already", "步骤标识“" + name + "”已被使用"});
    }
    return index;
}

RecipeStep StepReader::ReadMembers(const Json& json, const ObjectRule& rule, std::string name)
{
    try {
        RecipeStep step{name, &rule, m_members.ReadObject(json, rule, name)};
        if (const RecipeValue* material = step.members.Find("color")) {
            CheckedMaterial(material->text);
        }
        if (rule.name == "fuse" && step.members.Find("of") == nullptr) {
            GiveUnusedSteps(step);
        }
        return step;
    } catch (const RecipeFailure& failure) {
        RefuseWith(failure, name);
    }
}

/// A fuse that names nothing takes all that stands about.
void StepReader::GiveUnusedSteps(RecipeStep& step)
{
    RecipeValue list;
    list.kind = RecipeValue::Kind::List;
    list.name = "of";
    for (std::size_t i = 0; i < m_isUsed.size(); ++i) {
        if (!m_isUsed[i]) {
            RecipeValue reference;
            reference.kind = RecipeValue::Kind::Step;
            reference.index = i;
            list.items.push_back(std::move(reference));
            m_isUsed[i] = true;
        }
    }
    step.members.items.push_back(std::move(list));
}

std::size_t StepReader::FindStep(const Json& json)
{
    if (json.is_object()) {
        const std::size_t index = ReadStep(json);
        m_isUsed[index] = true;
        return index;
    }
    const std::string id = json.is_string() ? json.get<std::string>() : std::string();
    const auto found = m_ids.find(id);
    if (found == m_ids.end()) {
        throw RecipeFailure(
            "recipe.unknown-step", "There is no earlier step \"" + id + '"', "前面没有名为“" + id + "”的步骤");
    }
    m_isUsed[found->second] = true;
    return found->second;
}

std::string StepReader::NameOf(const Json& json, const std::string& operation) const
{
    if (json.contains("id") && json["id"].is_string()) {
        return json["id"].get<std::string>();
    }
    return std::to_string(m_begun + 1) + " (" + operation + ')';
}

void StepReader::SetResult(const Json& result)
{
    if (result.is_null()) {
        m_content.result = m_content.steps.size() - 1;
    } else if (result.is_string()) {
        m_content.result = FindStep(result);
    } else {
        throw RecipeFailure("recipe.wrong-shape", "\"result\" must be the id of a step", "“result”必须是步骤标识");
    }
    m_isUsed[m_content.result] = true;
}

/// A step that nothing uses is a slip of the pen: what it makes would silently be missing.
void StepReader::WantAllUsed() const
{
    const auto unused = std::find(m_isUsed.begin(), m_isUsed.end(), false);
    if (unused != m_isUsed.end()) {
        const std::string& name = m_content.steps[static_cast<std::size_t>(unused - m_isUsed.begin())].name;
        throw RecipeFailure(
            Reason{"recipe.unused-step", name, "Nothing uses step " + name, "步骤 " + name + " 没有被使用"});
    }
}

} // namespace familyfiles
