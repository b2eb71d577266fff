#pragma once

#include <string_view>

namespace familyfiles {

/// A function as the engine calls it. Each checks what it gets and what comes out and throws FormulaFault.
struct EngineFunction
{
    using One = double (*)(double);
    using Two = double (*)(double, double);
    using Many = double (*)(const double*, int);

    /// As formulas call it, or of an operator that the engine's own would work out without a check.
    std::string_view name;
    /// The one of these three that is not null.
    One one;
    Two two;
    Many many;

    /// REQUIRES: there is one of that name.
    static const EngineFunction& Get(std::string_view name);
};

} // namespace familyfiles
