#include "FamilyFileSvcs/WorkingParameters_p.h"

#include "Common/DebugWarning.h"
#include "FamilyFileSvcs/StoredValue_p.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "zept/FamilyType.h"
#include "zept/FamilyTypeInfo.h"
#include "zept/IFamilyFile.h"

#include <map>
#include <string>
#include <utility>

namespace tarnnuq {

namespace {

using ParametersById = std::map<std::wstring, zept::IFamilyParameter*>;

FamilyParameters CloneParameters(const zept::FamilyType& type, const WarningSource& source)
{
    FamilyParameters clones;
    clones.reserve(type.Parameters.size());
    for (const auto& param : type.Parameters) {
        if (!param) {
            WarnNull(source, L"param 为空");
            continue;
        }
        // The family file is promised a list without null entries.
        if (zept::OwnerPtr<zept::IFamilyParameter> clone = param->Clone()) {
            clones.push_back(std::move(clone));
        }
    }
    return clones;
}

/// The first parameter with each id. Built once: specifications and families may have thousands of parameters.
ParametersById IndexById(const FamilyParameters& parameters)
{
    ParametersById index;
    for (const auto& parameter : parameters) {
        index.emplace(parameter->GetIdentity().GetGuidString(), parameter.get());
    }
    return index;
}

void SetValues(const ISpecification& specification, WorkingParameters& working)
{
    const ParametersById index = IndexById(working.parameters);
    for (const auto& [name, given] : specification.Parameters) {
        if (!given || !given->Definition) {
            continue;
        }
        const auto found = index.find(given->Definition->Id);
        if (found != index.end() && SetStoredValue(working.definitions, given->Value, *found->second)) {
            working.anySet = true;
        }
    }
}

} // namespace

std::optional<WorkingParameters> PrepareParameters(
    zept::IFamilyFile& familyFile, const ISpecification& specification, const WarningSource& source)
{
    const zept::FamilyTypeInfo info = familyFile.GetTypeInfo();
    if (info.Types.empty() || !info.Types.front()) {
        return std::nullopt;
    }
    WorkingParameters working;
    working.parameters = CloneParameters(*info.Types.front(), source);
    working.definitions = info.Definitions;
    SetValues(specification, working);
    return working;
}

} // namespace tarnnuq
