#pragma once

#include "support/FakeFamilyParameterDefinition.h"
#include "zept/IFamilyParameterDefinitions.h"
#include "zept/UniIdentity.h"

#include <map>

namespace testsupport {

/// The definitions that the test sets, by identity.
class FakeFamilyParameterDefinitions final : public zept::IFamilyParameterDefinitions
{
public:
    const zept::IFamilyParameterDefinition* FindDefinition(const zept::UniIdentity& identity) const override
    {
        const auto found = definitions.find(identity);
        return found != definitions.end() ? &found->second : nullptr;
    }

    std::map<zept::UniIdentity, FakeFamilyParameterDefinition> definitions;
};

} // namespace testsupport
