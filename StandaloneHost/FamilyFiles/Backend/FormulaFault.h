#pragma once

namespace familyfiles {

/// Why a formula has no value. Thrown by the functions through the engine that calls them; it does not leave this
/// folder.
enum class FormulaFault
{
    DivisionByZero,
    Overflow,
    NotANumber
};

} // namespace familyfiles
