#pragma once

#include "FamilyFiles/Container/ContainerEntry.h"
#include "FamilyFiles/Container/ContainerReader.h"
#include "FamilyFiles/Formulas/EngineProgram.h"
#include "FamilyFiles/Formulas/FormulaEngine.h"
#include "FamilyFiles/Reason.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// The libraries below family files, for archives and for arithmetic, behind an interface that does not show them.
///
/// They are in a module of their own, libTarnNuqFamilyBackend, because loading them takes half as long as the whole
/// start of a program that then asks for no family file. Nothing is thrown across it. One object serves all threads.
class FamilyBackend
{
public:
    virtual ~FamilyBackend() = default;
    FamilyBackend(const FamilyBackend&) = delete;
    FamilyBackend& operator=(const FamilyBackend&) = delete;

    /// Loads the module on the first call; it stays loaded. From any thread.
    /// @return null with a reason: module.missing
    static const FamilyBackend* Get(Reason& reason);

    /// As ContainerReader::Open.
    virtual std::unique_ptr<ContainerReader> OpenContainer(std::string bytes, Reason& reason) const = 0;

    /// An archive of the entries, in their order; the same bytes for the same entries on every machine and at every
    /// time.
    /// @return nothing with a reason: container.bad-entry-name, .duplicate-entry, .too-many-entries, .entry-too-large
    virtual std::optional<std::string> WriteContainer(
        const std::vector<ContainerEntry>& entries, Reason& reason) const = 0;

    /// As FormulaEngine::Make; null when the engine does not take the expression.
    virtual std::unique_ptr<FormulaEngine> MakeEngine(
        const EngineProgram& program, std::vector<double>& arguments) const = 0;

protected:
    FamilyBackend() = default;
};

} // namespace familyfiles
