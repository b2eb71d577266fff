#pragma once

#include "FamilyFiles/Manifest/BilingualText.h"
#include "FamilyFiles/Manifest/StorageType.h"
#include "FamilyFiles/Manifest/Value.h"

#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// What a family says about one of its parameters. Values and bounds are of its storage type and in its unit.
struct ParameterDefinition
{
    /// A GUID as text; the same as that of the parameter in the catalogue. Kept as it is written.
    std::string id;
    /// By which formulas, types and the recipe call it; unique in the family.
    std::string name;
    BilingualText label;
    StorageType storageType = StorageType::FloatingPoint;
    /// How programs show it, as the catalogue counts these.
    int displayType = 0;
    /// Symbol of a known unit; empty for plain numbers, yes/no and texts.
    std::string unit;
    bool isInstance = false;
    std::optional<double> minimum;
    std::optional<double> maximum;
    /// When not empty, the only values that may be given.
    std::vector<Value> allowed;
    /// What types that give no value have.
    std::optional<Value> defaultValue;
    /// Not empty: the parameter is driven, its value follows from others.
    std::string formula;
    /// Members that this version does not know, as the text of a JSON object; empty when there are none.
    std::string extra;

    bool IsDriven() const { return !formula.empty(); }
};

} // namespace familyfiles
