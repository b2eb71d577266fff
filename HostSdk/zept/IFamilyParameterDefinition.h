#pragma once

#include "HostSdkExport.h"

namespace zept {

/// What the family file says about one of its parameters. Implemented by the host; owned by the family file.
class HOSTSDK_EXPORT IFamilyParameterDefinition
{
public:
    virtual ~IFamilyParameterDefinition();

    /// How the value is stored: 3 yes/no, 4 integer, 5 floating-point, 6 text; the library ignores all others.
    virtual int GetStorageType() const = 0;

protected:
    IFamilyParameterDefinition() = default;
    IFamilyParameterDefinition(const IFamilyParameterDefinition&) = default;
    IFamilyParameterDefinition& operator=(const IFamilyParameterDefinition&) = default;
};

} // namespace zept
