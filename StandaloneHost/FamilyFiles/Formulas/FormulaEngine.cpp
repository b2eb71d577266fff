#include "FamilyFiles/Formulas/FormulaEngine.h"

#include "FamilyFiles/Backend/FamilyBackend.h"
#include "FamilyFiles/Formulas/FormulaReasons.h"

namespace familyfiles {

std::unique_ptr<FormulaEngine> FormulaEngine::Make(
    const EngineProgram& program, std::vector<double>& arguments, const std::string& subject, Reason& reason)
{
    const FamilyBackend* const backend = FamilyBackend::Get(reason);
    if (backend == nullptr) {
        return nullptr;
    }
    std::unique_ptr<FormulaEngine> engine = backend->MakeEngine(program, arguments);
    if (engine == nullptr) {
        reason = FormulaTooLong(subject);
    }
    return engine;
}

} // namespace familyfiles
