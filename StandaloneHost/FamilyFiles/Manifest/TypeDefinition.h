#pragma once

#include "FamilyFiles/Manifest/Value.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace familyfiles {

/// One type of a family: a name and the values that it gives to parameters.
struct TypeDefinition
{
    std::string name;
    /// Index of the parameter and its value, each parameter at most once; values of driven parameters are what was
    /// computed when the file was written.
    std::vector<std::pair<std::size_t, Value>> values;
    /// As in ParameterDefinition.
    std::string extra;
};

} // namespace familyfiles
