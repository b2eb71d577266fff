#pragma once

#include "TarnNuqCoreExport.h"

#include <map>
#include <string>

namespace tarnnuq {

/// The definition of one parameter of a category or family type.
///
/// Definitions are shared: all family types of one reply point at the same definition objects.
class TARNNUQCORE_EXPORT IParameterDefinition
{
public:
    IParameterDefinition() = default;
    virtual ~IParameterDefinition();

    std::wstring Code;                           ///< Parameter code.
    std::wstring Formula;                        ///< Formula text; empty when the value is given.
    std::wstring GroupName;                      ///< Display group.
    std::wstring Id;                             ///< Parameter id as text (a GUID).
    bool IsDriveParameter = false;               ///< The parameter drives geometry.
    bool IsEssential = false;                    ///< A value is required.
    bool IsGeometry = false;                     ///< Geometric parameter.
    bool IsInstance = false;                     ///< Belongs to the placed instance, not to the type.
    bool IsOutputParameter = false;              ///< Computed by the family from others.
    bool IsStandard = false;                     ///< Standard parameter.
    std::wstring Name;                           ///< Name; the key in the maps that hold definitions and values.
    std::wstring ParameterDisplayType;           ///< Display type text as received.
    std::wstring ParameterType;                  ///< Parameter type text as received.
    std::wstring Unit;                           ///< Unit symbol.
    std::wstring UnitCode;                       ///< Unit code.
    std::wstring ValueType;                      ///< Value type text; "Logic" marks a yes/no parameter.
    std::map<std::wstring, std::wstring> Values; ///< Allowed values: key to display text.
    bool IsBuildIn = false;                      ///< Built-in parameter.
    bool IsShared = false;                       ///< Shared parameter.
    bool IsFromFile = false;                     ///< Taken from the family file.
};

} // namespace tarnnuq
