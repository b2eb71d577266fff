#pragma once

#include "FamilyFiles/Recipe/FormulaTable.h"
#include "FamilyFiles/Recipe/MemberReader.h"
#include "FamilyFiles/Recipe/RecipeContent.h"

#include <cstddef>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace familyfiles {

/// Reads the steps of a recipe and finds out which uses which.
class StepReader
{
public:
    /// @param content takes the steps; both must outlive the reader
    StepReader(RecipeContent& content, FormulaTable& formulas);

    /// @param result the id of the step that makes the component; null for the last one. Throws RecipeFailure, its
    ///        subject the step.
    void Read(const nlohmann::json& steps, const nlohmann::json& result);

private:
    using Json = nlohmann::json;

    std::size_t ReadStep(const Json& json);
    RecipeStep ReadMembers(const Json& json, const ObjectRule& rule, std::string name);
    std::size_t FindStep(const Json& json);
    std::string NameOf(const Json& json, const std::string& operation) const;
    void GiveUnusedSteps(RecipeStep& step);
    void SetResult(const Json& result);
    void WantAllUsed() const;

    RecipeContent& m_content;
    MemberReader m_members;
    std::map<std::string, std::size_t, std::less<>> m_ids;
    std::vector<bool> m_isUsed;
    std::size_t m_depth = 0;
    std::size_t m_begun = 0;
};

} // namespace familyfiles
