#pragma once

#include <array>
#include <string>
#include <vector>

namespace familyfiles {

/// Where a component is connected to others. Numbers are formulas over the family's parameters and the names that its
/// recipe introduces, in base units.
struct Connector
{
    std::string name;
    /// What flows there, for example "water", "air", "power".
    std::string system;
    std::array<std::string, 3> position;
    /// Points away from the component.
    std::array<std::string, 3> direction;
    /// "round", "rectangular", "oval" or "cable".
    std::string shape;
    /// Diameter, or width and height.
    std::vector<std::string> size;
    /// As in ParameterDefinition.
    std::string extra;
};

} // namespace familyfiles
