#pragma once

#include "FamilyFiles/Formulas/FormulaEngine.h"

#include <muParserBase.h>
#include <vector>

namespace familyfiles {

/// muParser with the few words that one formula needs. Its own functions, constants and operators are left out: theirs
/// give infinities without a word, and making them takes longer than working out the formula.
class MuParserEngine final : public FormulaEngine, private mu::ParserBase
{
public:
    /// @throws mu::ParserError when the expression is none
    MuParserEngine(const EngineProgram& program, std::vector<double>& arguments);

    FormulaOutcome Evaluate() const override;

private:
    void InitCharSets() override;
    void InitFun() override {}
    void InitConst() override {}
    void InitOprt() override {}
};

} // namespace familyfiles
