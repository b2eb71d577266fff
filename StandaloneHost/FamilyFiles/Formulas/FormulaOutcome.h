#pragma once

namespace familyfiles {

/// How a formula came out.
enum class FormulaState
{
    HasValue,
    DivisionByZero,
    Overflow,
    NotANumber
};

/// What came out of a formula.
struct FormulaOutcome
{
    FormulaState state = FormulaState::HasValue;
    /// Finite where there is a value.
    double value = 0;
};

} // namespace familyfiles
