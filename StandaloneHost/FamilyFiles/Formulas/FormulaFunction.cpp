#include "FamilyFiles/Formulas/FormulaFunction.h"

#include <algorithm>
#include <iterator>

namespace familyfiles {

namespace {

constexpr int Many = 1000;

/// Sorted by name.
constexpr FormulaFunction Functions[] = {
    {"abs", 1, 1, FunctionRule::Keeps},
    {"acos", 1, 1, FunctionRule::ToAngle},
    {"asin", 1, 1, FunctionRule::ToAngle},
    {"atan", 1, 1, FunctionRule::ToAngle},
    {"atan2", 2, 2, FunctionRule::JoinedToAngle},
    {"avg", 1, Many, FunctionRule::KeepsJoined},
    {"cbrt", 1, 1, FunctionRule::CubeRoot},
    {"ceil", 1, 1, FunctionRule::Keeps},
    {"cos", 1, 1, FunctionRule::OfAngle},
    {"cosh", 1, 1, FunctionRule::OfPlain},
    {"exp", 1, 1, FunctionRule::OfPlain},
    {"floor", 1, 1, FunctionRule::Keeps},
    {"hypot", 2, 2, FunctionRule::KeepsJoined},
    {"if", 3, 3, FunctionRule::If},
    {"ln", 1, 1, FunctionRule::OfPlain},
    {"log10", 1, 1, FunctionRule::OfPlain},
    {"log2", 1, 1, FunctionRule::OfPlain},
    {"max", 1, Many, FunctionRule::KeepsJoined},
    {"min", 1, Many, FunctionRule::KeepsJoined},
    {"mod", 2, 2, FunctionRule::KeepsJoined},
    {"not", 1, 1, FunctionRule::Not},
    {"pow", 2, 2, FunctionRule::Power},
    {"round", 1, 1, FunctionRule::Keeps},
    {"sign", 1, 1, FunctionRule::Plain},
    {"sin", 1, 1, FunctionRule::OfAngle},
    {"sinh", 1, 1, FunctionRule::OfPlain},
    {"sqrt", 1, 1, FunctionRule::SquareRoot},
    {"sum", 1, Many, FunctionRule::KeepsJoined},
    {"tan", 1, 1, FunctionRule::OfAngle},
    {"tanh", 1, 1, FunctionRule::OfPlain},
    {"trunc", 1, 1, FunctionRule::Keeps},
    {"value", 1, 1, FunctionRule::Value},
};

} // namespace

const FormulaFunction* FormulaFunction::Find(std::string_view name)
{
    const auto* const found = std::lower_bound(std::begin(Functions), std::end(Functions), name,
        [](const FormulaFunction& function, std::string_view wanted) { return function.name < wanted; });
    return found != std::end(Functions) && found->name == name ? found : nullptr;
}

} // namespace familyfiles
