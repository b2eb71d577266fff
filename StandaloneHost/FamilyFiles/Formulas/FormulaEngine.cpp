#include "FamilyFiles/Formulas/FormulaEngine.h"

#include <string>

namespace familyfiles {

FormulaEngine::FormulaEngine(const EngineProgram& program, std::vector<double>& arguments)
{
    FormulaEngine::InitCharSets();
    // What can be worked out beforehand would be worked out in branches that are never taken, too.
    EnableOptimizer(false);
    for (std::size_t argument = 0; argument < arguments.size(); ++argument) {
        DefineVar(EngineProgram::ArgumentName(argument), &arguments[argument]);
    }
    for (const EngineFunction* const function : program.functions) {
        const std::string name(function->name);
        if (function->one != nullptr) {
            DefineFun(name, function->one, false);
        } else if (function->two != nullptr) {
            DefineFun(name, function->two, false);
        } else {
            DefineFun(name, function->many, false);
        }
    }
    SetExpr(program.expression);
}

void FormulaEngine::InitCharSets()
{
    DefineNameChars("0123456789abcdefghijklmnopqrstuvwxyz");
    DefineOprtChars("+-*?:");
    DefineInfixOprtChars("-");
}

} // namespace familyfiles
