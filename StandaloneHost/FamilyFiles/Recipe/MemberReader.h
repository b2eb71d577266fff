#pragma once

#include "FamilyFiles/Recipe/FormulaTable.h"
#include "FamilyFiles/Recipe/RecipeRules.h"
#include "FamilyFiles/Recipe/RecipeValue.h"

#include <cstddef>
#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace familyfiles {

/// Turns a JSON object into members, by the rule that says which it may have. All functions throw RecipeFailure.
class MemberReader
{
public:
    /// Finds or makes the step that a JSON value stands for.
    using StepFinder = std::function<std::size_t(const nlohmann::json&)>;

    /// @param formulas must outlive the reader
    MemberReader(FormulaTable& formulas, StepFinder findStep);

    /// @param subject the step, for reasons
    RecipeValue ReadObject(const nlohmann::json& json, const ObjectRule& rule, const std::string& subject);

    RecipeValue ReadMember(const nlohmann::json& json, const MemberRule& rule, const std::string& subject);

private:
    using Json = nlohmann::json;

    RecipeValue ReadShape(const Json& json, const MemberRule& rule, const std::string& subject);
    RecipeValue ReadNumber(const Json& json, NumberKind kind, std::string_view name, const std::string& subject);
    RecipeValue ReadNumbers(
        const Json& json, std::size_t count, NumberKind kind, std::string_view name, const std::string& subject);
    RecipeValue ReadAxis(const Json& json, std::string_view name, const std::string& subject);
    RecipeValue ReadProfile(const Json& json, bool isHole, const std::string& subject);
    RecipeValue ReadPoints(const Json& json, std::size_t dimensions, std::string_view name, const std::string& subject);
    RecipeValue ReadPoint(const Json& json, std::size_t dimensions, std::string_view name, const std::string& subject);
    RecipeValue ReadEdges(const Json& json, const std::string& subject);
    RecipeValue ReadSteps(const Json& json);

    FormulaTable& m_formulas;
    StepFinder m_findStep;
};

} // namespace familyfiles
