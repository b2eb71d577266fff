#pragma once

#include <optional>
#include <string>

namespace zept {
class IFamilyParameter;
class IFamilyParameterDefinitions;
} // namespace zept

namespace tarnnuq {

/// Sets a family parameter from a specification's text, as the parameter's definition says that it is stored.
/// @param definitions the family file's definitions; null sets nothing
/// @return false when the parameter has no definition or is stored in a way that is not known here
bool SetStoredValue(
    const zept::IFamilyParameterDefinitions* definitions, const std::wstring& text, zept::IFamilyParameter& parameter);

/// The text under which a specification keeps the value of a family parameter.
/// @param definitions the family file's definitions; null has no text for anything
/// @return none where SetStoredValue() would set nothing
std::optional<std::wstring> StoredValueText(
    const zept::IFamilyParameterDefinitions* definitions, const zept::IFamilyParameter& parameter);

} // namespace tarnnuq
