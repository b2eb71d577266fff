#pragma once

#include "HostSdkExport.h"

namespace zept {

class IFamilyParameterDefinition;
class UniIdentity;

/// The parameter definitions of a family file. Implemented by the host; owned by the family file.
class HOSTSDK_EXPORT IFamilyParameterDefinitions
{
public:
    virtual ~IFamilyParameterDefinitions();
    IFamilyParameterDefinitions(const IFamilyParameterDefinitions&) = delete;
    IFamilyParameterDefinitions& operator=(const IFamilyParameterDefinitions&) = delete;

    /// The definition with that identity, or null. Valid while the family file lives.
    virtual const IFamilyParameterDefinition* FindDefinition(const UniIdentity& identity) const = 0;

protected:
    IFamilyParameterDefinitions() = default;
};

} // namespace zept
