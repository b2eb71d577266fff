#include "FamilyFiles/HostObjects/ParameterIdentities.h"

#include "FamilyFiles/Utf8.h"

namespace familyfiles {

ParameterIdentities::ParameterIdentities(const FamilyManifest& manifest)
{
    m_identities.reserve(manifest.parameters.size());
    for (const ParameterDefinition& parameter : manifest.parameters) {
        m_identities.emplace_back(WideText(parameter.id));
        m_parameters.emplace(m_identities.back(), m_identities.size() - 1);
    }
}

std::optional<std::size_t> ParameterIdentities::Find(const zept::UniIdentity& identity) const
{
    const auto found = m_parameters.find(identity);
    return found != m_parameters.end() ? std::optional<std::size_t>(found->second) : std::nullopt;
}

} // namespace familyfiles
