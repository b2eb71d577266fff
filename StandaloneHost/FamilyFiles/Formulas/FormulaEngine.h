#pragma once

#include "FamilyFiles/Formulas/EngineProgram.h"
#include "FamilyFiles/Formulas/FormulaOutcome.h"
#include "FamilyFiles/Reason.h"

#include <memory>
#include <vector>

namespace familyfiles {

/// What works a formula out.
class FormulaEngine
{
public:
    /// @param arguments stay where they are as long as the engine is used; their values may change between evaluations
    /// @return null with a reason: formula.too-long, or why there are no engines
    static std::unique_ptr<FormulaEngine> Make(
        const EngineProgram& program, std::vector<double>& arguments, const std::string& subject, Reason& reason);

    virtual ~FormulaEngine() = default;
    FormulaEngine(const FormulaEngine&) = delete;
    FormulaEngine& operator=(const FormulaEngine&) = delete;

    /// For the present arguments.
    virtual FormulaOutcome Evaluate() const = 0;

    /// The longest expression that an engine takes.
    static constexpr std::size_t MaximalLength = 19000;

protected:
    FormulaEngine() = default;
};

} // namespace familyfiles
