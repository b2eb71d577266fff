#pragma once

#include "TarnNuqServiceExport.h"

#include <string>

namespace tarn {
class ITarnPropertyInfo;
} // namespace tarn

namespace tarnnuq {

/// Translates a host property's numbers for storage and display into the words that the cloud uses for them.
///
/// A storage number without a word gives "String" and "String" with the debug warning "eStorageType 不合法"; a display
/// number without one, such as 18, gives "Text" with the debug warning "ParameterDisplayType 不合法". An integer with
/// value texts is an "Enum".
/// @param info the property; null raises the debug warning "pPropInfo 为空" and leaves the texts as they are
/// @param valueType receives "String", "Logic", "Number" or "Enum"
/// @param parameterType receives the word for the storage type
/// @param displayType receives the word for the display type
TARNNUQSERVICE_EXPORT void GetStorageTypeAndDispTypeFromPropertyInfo(const tarn::ITarnPropertyInfo* info,
    std::wstring& valueType, std::wstring& parameterType, std::wstring& displayType);

} // namespace tarnnuq
