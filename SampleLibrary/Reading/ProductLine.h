#pragma once

#include <string>
#include <vector>

namespace samplelibrary {

/// A parameter in whose values the components of a category differ.
struct Axis
{
    std::string Parameter;
    std::vector<std::string> Values;
};

/// A value for every family type: a constant, a formula or a text with places for other values.
struct Assignment
{
    std::string Target; ///< code of a parameter, or a name with a leading "_" for an intermediate number
    std::string Expression;
};

/// How the components and family types of an end category are made.
struct ProductLine
{
    std::string SizeTable;  ///< name of the table whose rows are the family types
    std::string TypeName;   ///< name of a family type with places for values, for example "DN{DN}"
    std::vector<Axis> Axes; ///< each combination of values is a component
    std::vector<Assignment> Values;
    std::vector<std::string> Conditions;   ///< formulas that a family type must meet to exist
    std::vector<std::string> PropertySets; ///< further property sets that hold, without "Pset_"
};

} // namespace samplelibrary
