#pragma once

#include "FamilyFiles/HostObjects/FamilyDefinition.h"
#include "FamilyFiles/HostObjects/ParameterIdentities.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "zept/IFamilyParameterDefinitions.h"

#include <memory>
#include <vector>

namespace familyfiles {

/// The definitions of a family's parameters by their identities.
class FamilyDefinitions final : public zept::IFamilyParameterDefinitions
{
public:
    FamilyDefinitions(const FamilyManifest& manifest, std::shared_ptr<const ParameterIdentities> identities);

    const zept::IFamilyParameterDefinition* FindDefinition(const zept::UniIdentity& identity) const override;

private:
    std::shared_ptr<const ParameterIdentities> m_spIdentities;
    std::vector<FamilyDefinition> m_definitions;
};

} // namespace familyfiles
