#pragma once

namespace familyfiles {

/// Why a formula has no value. Thrown inside the engine and caught by Expression; it does not leave this folder.
enum class FormulaFault
{
    DivisionByZero,
    Overflow,
    NotANumber
};

} // namespace familyfiles
