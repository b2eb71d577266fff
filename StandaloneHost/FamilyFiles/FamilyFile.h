#pragma once

#include "FamilyFiles/Formulas/FormulaSet.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"
#include "zept/IFamilyFile.h"
#include "zept/IFamilyParameterDefinitions.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

class ShapePlan;
class Solid;

/// A family file as the library works with it; also tells an application why something was refused.
///
/// The file is read once, on opening, and not needed afterwards. Not for use by several threads at once. No operation
/// throws.
class FamilyFile final : public zept::IFamilyFile
{
public:
    /// Opens a file: container, manifest, schema, formulas.
    /// @param path UTF-8
    /// @return null with a reason
    static std::unique_ptr<FamilyFile> Open(const std::string& path, Reason& reason);

    ~FamilyFile() override;

    /// All types in the file's order with all parameters in the file's order; driven ones are computed.
    zept::FamilyTypeInfo GetTypeInfo() override;

    /// The geometry that follows from the given values: driving values are checked, driven ones computed, the recipe
    /// evaluated, the kernel asked. Parameters that are not given have the values of the first type.
    zept::OwnerPtr<zept::IGeometry> RegenerateGeometry(
        const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& parameters) override;

    /// The geometry of the first type, built when it is first asked for and kept. A failure is kept too.
    zept::OwnerPtr<zept::IGeometry> GetCurrentGeometry() override;

    /// Fills @p outputs with all driven parameters, in the file's order; leaves them alone on failure.
    bool ComputeDrivenParameters(const std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& inputs,
        std::vector<zept::OwnerPtr<zept::IFamilyParameter>>& outputs) override;

    const FamilyManifest& Manifest() const;
    const FormulaSet& Formulas() const;

    /// Why the last of the four operations above gave nothing; empty when it did not fail.
    const Reason& LastReason() const;

private:
    struct Parts;
    explicit FamilyFile(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};

} // namespace familyfiles
