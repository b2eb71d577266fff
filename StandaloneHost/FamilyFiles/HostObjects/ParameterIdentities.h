#pragma once

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "zept/UniIdentity.h"

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace familyfiles {

/// The identities of a family's parameters, shared by all their values.
class ParameterIdentities
{
public:
    explicit ParameterIdentities(const FamilyManifest& manifest);

    const zept::UniIdentity& At(std::size_t parameter) const { return m_identities[parameter]; }
    std::optional<std::size_t> Find(const zept::UniIdentity& identity) const;

private:
    std::vector<zept::UniIdentity> m_identities;
    std::map<zept::UniIdentity, std::size_t> m_parameters;
};

} // namespace familyfiles
