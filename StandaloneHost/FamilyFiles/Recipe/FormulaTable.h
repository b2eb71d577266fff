#pragma once

#include "FamilyFiles/Recipe/RecipeContent.h"

#include <string>
#include <unordered_map>

namespace familyfiles {

/// Compiles the formulas of a recipe; equal texts are compiled once.
class FormulaTable
{
public:
    /// @param content takes the formulas; its scope has the names. Must outlive the table.
    explicit FormulaTable(RecipeContent& content);

    /// The formula's index in the content. Throws RecipeFailure.
    std::size_t Add(const std::string& text, const std::string& subject);

    /// A formula that says yes or no. Throws RecipeFailure.
    std::size_t AddCondition(const std::string& text, const std::string& subject);

    /// A formula whose result may stand for a number of this kind. Throws RecipeFailure.
    std::size_t AddNumber(const std::string& text, NumberKind kind, const std::string& subject);

    /// To be called when the scope has got another name.
    void Forget() { m_known.clear(); }

private:
    RecipeContent& m_content;
    std::unordered_map<std::string, std::size_t> m_known;
};

} // namespace familyfiles
