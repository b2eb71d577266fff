#pragma once

#include <string_view>

namespace familyfiles {

/// What a function wants and what comes out, apart from the number itself.
enum class FunctionRule
{
    Keeps,       ///< a number; one of the same quantity
    KeepsJoined, ///< numbers of one quantity; one of the same
    Plain,       ///< a number of any quantity; a plain one
    OfPlain,     ///< a plain number; a plain one
    OfAngle,     ///< an angle; a plain number
    ToAngle,     ///< a plain number; an angle
    JoinedToAngle,
    SquareRoot,
    CubeRoot,
    Power, ///< as the operator
    Value, ///< the number itself, plain
    Not,
    If
};

/// A function that formulas can call. Functions that work out a number have the same name in FormulaEngine.
struct FormulaFunction
{
    std::string_view name;
    int leastArguments;
    int mostArguments;
    FunctionRule rule;

    /// Null when there is none of that name.
    static const FormulaFunction* Find(std::string_view name);
};

} // namespace familyfiles
