#pragma once

#include "FamilyFiles/Formulas/Expression.h"
#include "FamilyFiles/Formulas/FormulaVariable.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <vector>

namespace familyfiles {

struct Unit;

/// The parameters of a family as a system of formulas: from the values of some, the driving ones, follow those of the
/// others, the driven ones.
///
/// Formulas are checked and put in order once and evaluated often; the cost of both grows with the number of variables
/// and the length of the formulas. Never throws on bad input. Not for use by several threads at once.
class FormulaSet
{
public:
    /// @return nothing with a reason that names the variable: formula.cycle and those of Expression::Compile, or
    ///         formula.duplicate-name, or formula.unknown-unit for that of a variable
    static std::optional<FormulaSet> Make(std::vector<FormulaVariable> variables, Reason& reason);

    /// The driven variables, each behind all that it needs.
    const std::vector<std::size_t>& Order() const { return m_order; }

    /// The names with their kinds and quantities; slot n is variable n.
    const Scope& Names() const { return m_names; }

    /// Works out the driven variables.
    ///
    /// @param values a value for each variable, of its storage type and in its unit; those of driven variables are
    ///        replaced. Unchanged on failure.
    /// @return false with a reason that names the variable: formula.division-by-zero, .overflow, .not-a-number,
    ///         .out-of-range (no 32-bit integer), value.not-finite (a driving value)
    bool Evaluate(std::vector<Value>& values, Reason& reason) const;

    /// The values as expressions see them: numbers in base units. For recipes, which go on from there.
    /// REQUIRES: a value for each variable, of its storage type
    Scope ScopeOf(const std::vector<Value>& values) const;

private:
    class Maker;

    FormulaSet() = default;
    void Put(Scope& scope, std::size_t variable, const Value& value) const;
    std::optional<Value> ValueOf(std::size_t variable, const Expression& formula, Reason& reason) const;

    Scope m_names;
    std::vector<FormulaVariable> m_variables;
    std::vector<const Unit*> m_units;
    std::vector<std::size_t> m_given;
    std::vector<std::size_t> m_order;
    /// By position in m_order.
    std::vector<Expression> m_formulas;
    /// Values while they are worked out.
    mutable Scope m_working;
};

} // namespace familyfiles
