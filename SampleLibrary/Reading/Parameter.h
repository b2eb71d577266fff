#pragma once

#include "Reading/BilingualText.h"

#include <string>

namespace samplelibrary {

/// What the values of a parameter are.
enum class ValueKind
{
    Number,
    Integer,
    Text,
    Logic,
    Choice
};

/// A parameter of components; the same object stands for it wherever it is named.
struct Parameter
{
    std::string Code;
    ValueKind Kind = ValueKind::Text;
    std::string Unit;        ///< key of its unit, "-" for none
    std::string Group;       ///< code of its display group
    std::string Enumeration; ///< name of its enumeration, empty unless Kind is Choice
    BilingualText Name;
    BilingualText Label; ///< how a value stands in a component name: "{}" is the value, "{x10}" ten times it; empty:
                         ///< value and unit
    BilingualText ZeroLabel; ///< how 0 or false stands there; empty: as Label says
    bool IsEssential = false;
    bool IsGeometry = false;
    bool IsDriveParameter = false;
    bool IsInstance = false;
    bool IsBuildIn = false;
    std::string Guid; ///< made from the code alone, so that it is the same in every place

    /// Whether the values are numbers that formulas can use.
    bool IsNumeric() const { return Kind == ValueKind::Number || Kind == ValueKind::Integer; }
};

} // namespace samplelibrary
