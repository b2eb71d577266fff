#pragma once

#include "zept/IFamilyParameter.h"
#include "zept/OwnerPtr.h"

#include <string>
#include <vector>

namespace zept {

/// One type of a family: a name and the values of the family's parameters.
struct FamilyType
{
    std::wstring Name;
    /// The parameters in the family's order; entries may be null.
    std::vector<OwnerPtr<IFamilyParameter>> Parameters;
};

} // namespace zept
