#include "FamilyFiles/HostObjects/FamilyDefinitions.h"

#include <utility>

namespace familyfiles {

FamilyDefinitions::FamilyDefinitions(
    const FamilyManifest& manifest, std::shared_ptr<const ParameterIdentities> identities)
    : m_spIdentities(std::move(identities))
{
    m_definitions.reserve(manifest.parameters.size());
    for (const ParameterDefinition& parameter : manifest.parameters) {
        m_definitions.emplace_back(parameter.storageType);
    }
}

const zept::IFamilyParameterDefinition* FamilyDefinitions::FindDefinition(const zept::UniIdentity& identity) const
{
    const std::optional<std::size_t> found = m_spIdentities->Find(identity);
    return found ? &m_definitions[*found] : nullptr;
}

} // namespace familyfiles
