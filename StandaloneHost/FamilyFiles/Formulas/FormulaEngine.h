#pragma once

#include "FamilyFiles/Formulas/EngineProgram.h"

#include <muParserBase.h>
#include <vector>

namespace familyfiles {

/// muParser with the few words that one formula needs. Its own functions, constants and operators are left out: theirs
/// give infinities without a word, and making them takes longer than working out the formula.
class FormulaEngine final : public mu::ParserBase
{
public:
    /// @param arguments stay where they are as long as the engine is used; their values may change between evaluations
    /// @throws mu::ParserError when the engine does not take the expression
    FormulaEngine(const EngineProgram& program, std::vector<double>& arguments);

    /// The expression's value for the present arguments, which may be infinite or not a number.
    /// @throws FormulaFault out of the functions
    double Value() const { return Eval(); }

    /// The longest expression that the engine takes.
    static constexpr std::size_t MaximalLength = 19000;

protected:
    void InitCharSets() override;
    void InitFun() override {}
    void InitConst() override {}
    void InitOprt() override {}
};

} // namespace familyfiles
