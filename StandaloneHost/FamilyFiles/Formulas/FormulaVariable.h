#pragma once

#include "FamilyFiles/Manifest/StorageType.h"

#include <string>

namespace familyfiles {

/// One parameter as a set of formulas sees it.
struct FormulaVariable
{
    std::string name;
    StorageType storageType = StorageType::FloatingPoint;
    /// The unit of its value outside of formulas; empty for plain numbers, yes/no and texts.
    std::string unit;
    /// Empty: the value is given.
    std::string formula;
};

} // namespace familyfiles
