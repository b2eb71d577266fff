#pragma once

#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/HostObjects/FamilyDefinitions.h"
#include "FamilyFiles/HostObjects/ParameterIdentities.h"
#include "FamilyFiles/Reason.h"
#include "zept/FamilyType.h"
#include "zept/IFamilyFile.h"
#include "zept/IGeometry.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace familyfiles {

/// A family file as the library works with it; also tells an application why something was refused.
///
/// The file is read once, on opening, and not needed afterwards. Not for use by several threads at once. No operation
/// throws.
class FamilyFile final : public zept::IFamilyFile
{
public:
    using Parameters = std::vector<zept::OwnerPtr<zept::IFamilyParameter>>;
    /// Told the outcome of each operation: why it failed, or an empty reason.
    using Listener = std::function<void(const Reason&)>;

    /// Opens a file as FamilyModel does.
    /// @param path UTF-8
    /// @return null with a reason
    static std::unique_ptr<FamilyFile> Open(const std::string& path, Reason& reason, Listener listener = {});

    explicit FamilyFile(std::unique_ptr<FamilyModel> model, Listener listener = {});
    ~FamilyFile() override;

    /// All types in the file's order with all parameters in the file's order; driven ones are computed where that is
    /// possible, else as the file has them.
    zept::FamilyTypeInfo GetTypeInfo() override;

    /// The geometry that follows from the given values: driving values are checked, driven ones computed, whatever is
    /// given for them, the recipe evaluated, the kernel asked. Parameters that are not given have the values of the
    /// first type. Values that are those of the current geometry give that one again.
    zept::OwnerPtr<zept::IGeometry> RegenerateGeometry(const Parameters& parameters) override;

    /// The geometry of the first type, built when it is first asked for and kept. A failure is kept too.
    zept::OwnerPtr<zept::IGeometry> GetCurrentGeometry() override;

    /// Fills @p outputs with all driven parameters, in the file's order; leaves them alone on failure. Driving values
    /// are checked as for a geometry.
    bool ComputeDrivenParameters(const Parameters& inputs, Parameters& outputs) override;

    const FamilyModel& Model() const { return *m_model; }

    /// Why the last of the three operations above gave nothing; empty when it did.
    const Reason& LastReason() const { return m_reason; }

private:
    std::optional<std::vector<Value>> ComputedFrom(const Parameters& parameters);
    std::optional<std::size_t> IndexOf(const zept::IFamilyParameter& parameter) const;
    Value ValueOf(const zept::IFamilyParameter& parameter, std::size_t index) const;
    void BuildCurrent();
    void MakeTypes();
    zept::FamilyType MakeType(std::size_t type) const;
    template <typename Operation>
    void Guarded(const Operation& operation);

    std::unique_ptr<FamilyModel> m_model;
    Listener m_listener;
    Reason m_reason;
    std::shared_ptr<const ParameterIdentities> m_spIdentities;
    FamilyDefinitions m_definitions;
    /// Made when they are first asked for.
    std::vector<zept::FamilyType> m_types;

    bool m_wasCurrentBuilt = false;
    std::vector<Value> m_currentValues;
    std::shared_ptr<const Solid> m_spCurrent;
    Reason m_currentReason;
};

} // namespace familyfiles
