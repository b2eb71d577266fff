#pragma once

#include "FamilyFiles/Formulas/Quantity.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Formulas/ValueKind.h"
#include "FamilyFiles/Reason.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// One formula over the names of a scope, compiled once and evaluated often.
///
/// | | |
/// |---|---|
/// | numbers | 12, 1.5, 2e3, with a unit as suffix if wanted: 2m, 1.5 in, 30deg, 20m3/h, (a+b)kW |
/// | names | letters of any script, digits, "_" and "."; any other name in brackets: [Width (outer)] |
/// | operators | ^ (from the right), - + ! (before a value), * / %, + -, < <= > >=, == != , &&, \|\|, a ? b : c |
/// | words | and or not in place of && \|\| !, true yes, false no, pi |
/// | texts | "in quotation marks"; they can be compared by == and != and chosen by ?: and if |
/// | functions | if abs sign floor ceil round trunc mod min max sum avg sqrt cbrt pow exp ln log10 log2 sin cos tan
/// asin acos atan atan2 sinh cosh tanh hypot not value |
///
/// Full-width signs (（，×÷＝“” and so on) are read as their plain counterparts. Angles are in degrees everywhere:
/// sin(30) is 0.5. A yes/no value counts as 1 or 0 in arithmetic; a condition has to be a yes/no value. `%` and `mod`
/// have the sign of the divisor; `round` rounds halves away from 0; `a ? b : c` and `if(a, b, c)` work out only the
/// branch taken.
///
/// Sums, differences, comparisons, remainders and choices of two different quantities are refused. Products and
/// quotients of lengths, areas and volumes are such again; of other quantities they are plain numbers. `value(x)` is x,
/// in its base unit, as a plain number.
///
/// Never throws on bad input. Not for use by several threads at once.
class Expression
{
public:
    /// The longest formula, in bytes, and the deepest nesting that is accepted.
    static constexpr std::size_t MaximalLength = 4096;
    static constexpr int MaximalNesting = 100;

    /// Compiles a formula.
    /// @param text    UTF-8
    /// @param names   what it may use; not needed afterwards
    /// @param subject whose formula it is, for the reason
    /// @return nothing with a reason: formula.empty, .too-long, .too-deep, .syntax, .unknown-name, .unknown-function,
    ///         .unknown-unit, .wrong-kind, .wrong-unit, .arguments
    static std::optional<Expression> Compile(
        std::string_view text, const Scope& names, const std::string& subject, Reason& reason);

    /// The names that a formula uses, each once, in their order in the text, whether a scope has them or not.
    /// @return nothing with a reason when the text is no formula
    static std::optional<std::vector<std::string>> NamesIn(
        std::string_view text, const std::string& subject, Reason& reason);

    ~Expression();
    Expression(Expression&&) noexcept;
    Expression& operator=(Expression&&) noexcept;

    ValueKind Kind() const;
    /// What a number that comes out measures; plain for yes/no and texts.
    Quantity ResultQuantity() const;
    /// The slots that the formula uses, each once, in their order in the text.
    const std::vector<Scope::Slot>& Uses() const;
    /// True when it uses no name.
    bool IsConstant() const { return Uses().empty(); }

    /// The number that comes out, in the base unit of its quantity; 1 or 0 for yes/no. Always finite.
    /// REQUIRES: the kind is not Text; @p values has the slots of the scope that the formula was compiled against.
    /// @return nothing with a reason: formula.division-by-zero, .overflow, .not-a-number
    std::optional<double> Number(const Scope& values, Reason& reason) const;

    /// The text that comes out.
    /// REQUIRES: the kind is Text; as above
    std::optional<std::string> Text(const Scope& values, Reason& reason) const;

private:
    struct Compiled;
    explicit Expression(std::unique_ptr<Compiled> compiled);

    std::unique_ptr<Compiled> m_compiled;
};

} // namespace familyfiles
