#include "FamilyFiles/Backend/MuParserEngine.h"

#include "FamilyFiles/Backend/EngineFunction.h"
#include "FamilyFiles/Backend/FormulaFault.h"

#include <cmath>
#include <string>

namespace familyfiles {

namespace {

FormulaState StateOf(FormulaFault fault)
{
    switch (fault) {
    case FormulaFault::DivisionByZero:
        return FormulaState::DivisionByZero;
    case FormulaFault::Overflow:
        return FormulaState::Overflow;
    case FormulaFault::NotANumber:
        break;
    }
    return FormulaState::NotANumber;
}

} // namespace

MuParserEngine::MuParserEngine(const EngineProgram& program, std::vector<double>& arguments)
{
    MuParserEngine::InitCharSets();
    // What can be worked out beforehand would be worked out in branches that are never taken, too.
    EnableOptimizer(false);
    for (std::size_t argument = 0; argument < arguments.size(); ++argument) {
        DefineVar(EngineProgram::ArgumentName(argument), &arguments[argument]);
    }
    for (const std::string_view name : program.functions) {
        const EngineFunction& function = EngineFunction::Get(name);
        if (function.one != nullptr) {
            DefineFun(std::string(name), function.one, false);
        } else if (function.two != nullptr) {
            DefineFun(std::string(name), function.two, false);
        } else {
            DefineFun(std::string(name), function.many, false);
        }
    }
    SetExpr(program.expression);
}

void MuParserEngine::InitCharSets()
{
    DefineNameChars("0123456789abcdefghijklmnopqrstuvwxyz");
    DefineOprtChars("+-*?:");
    DefineInfixOprtChars("-");
}

FormulaOutcome MuParserEngine::Evaluate() const
{
    try {
        const double value = Eval();
        // Sums, differences and products are the engine's own, unchecked.
        return std::isfinite(value) ? FormulaOutcome{FormulaState::HasValue, value}
                                    : FormulaOutcome{FormulaState::Overflow, 0};
    } catch (FormulaFault fault) {
        return {StateOf(fault), 0};
    } catch (const mu::ParserError&) {
        return {FormulaState::NotANumber, 0};
    }
}

} // namespace familyfiles
