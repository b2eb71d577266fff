#pragma once

#include "TarnNuqService/FamilyFileSvcs/FamilyCalls.h"
#include "support/FakeFamilyParameterDefinition.h"
#include "zept/IFamilyParameterDefinitions.h"
#include "zept/UniIdentity.h"

#include <map>
#include <string>

namespace testsupport {

/// The definitions that the test sets, by the exact text of their id; notes what is looked up.
class RecordingDefinitions final : public zept::IFamilyParameterDefinitions
{
public:
    explicit RecordingDefinitions(FamilyCalls& calls) : m_calls(calls) {}

    const zept::IFamilyParameterDefinition* FindDefinition(const zept::UniIdentity& identity) const override
    {
        const std::wstring text = identity.GetGuidString();
        const std::string id(text.begin(), text.end());
        m_calls.Note("FindDefinition " + id);
        const auto found = storageTypes.find(id);
        return found != storageTypes.end() ? &found->second : nullptr;
    }

    std::map<std::string, FakeFamilyParameterDefinition> storageTypes;

private:
    FamilyCalls& m_calls;
};

} // namespace testsupport
