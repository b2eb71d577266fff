#include "FamilyFiles/Recipe/FormulaTable.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

namespace familyfiles {

namespace {

Quantity QuantityOf(NumberKind kind)
{
    switch (kind) {
    case NumberKind::Length:
    case NumberKind::NoneLength:
    case NumberKind::Coordinate:
        return Quantity::Length;
    case NumberKind::Angle:
    case NumberKind::Turn:
        return Quantity::Angle;
    case NumberKind::Component:
    case NumberKind::Count:
    case NumberKind::NoneCount:
    case NumberKind::Factor:
        break;
    }
    return Quantity::Plain;
}

} // namespace

FormulaTable::FormulaTable(RecipeContent& content) : m_content(content) {}

std::size_t FormulaTable::Add(const std::string& text, const std::string& subject)
{
    const auto [entry, isNew] = m_known.try_emplace(text, m_content.formulas.size());
    if (!isNew) {
        return entry->second;
    }
    if (m_content.formulas.size() == RecipeLimits::MostFormulas) {
        throw RecipeFailure("recipe.too-many", "The recipe has too many formulas", "几何配方中的公式过多");
    }
    Reason reason;
    std::optional<Expression> formula = Expression::Compile(text, m_content.scope, subject, reason);
    if (!formula) {
        throw RecipeFailure(reason);
    }
    m_content.formulas.push_back(std::move(*formula));
    return entry->second;
}

std::size_t FormulaTable::AddCondition(const std::string& text, const std::string& subject)
{
    const std::size_t index = Add(text, subject);
    if (m_content.formulas[index].Kind() != ValueKind::YesNo) {
        throw RecipeFailure(
            "formula.wrong-kind", '"' + text + "\" does not say yes or no", "“" + text + "”的结果不是“是”或“否”");
    }
    return index;
}

std::size_t FormulaTable::AddNumber(const std::string& text, NumberKind kind, const std::string& subject)
{
    const std::size_t index = Add(text, subject);
    const Expression& formula = m_content.formulas[index];
    if (formula.Kind() != ValueKind::Number) {
        throw RecipeFailure("formula.wrong-kind", '"' + text + "\" is no number", "“" + text + "”的结果不是数值");
    }
    const Quantity quantity = formula.ResultQuantity();
    const Quantity wanted = QuantityOf(kind);
    const bool isFactor = kind == NumberKind::Component && quantity == Quantity::Length;
    if (quantity != Quantity::Plain && quantity != wanted && !isFactor) {
        throw RecipeFailure("formula.wrong-unit",
            '"' + text + "\" is of another quantity: " + std::string(EnglishName(quantity)) + " instead of " +
                std::string(EnglishName(wanted)),
            "“" + text + "”的量不符：是" + std::string(ChineseName(quantity)) + "，应为" +
                std::string(ChineseName(wanted)));
    }
    return index;
}

} // namespace familyfiles
