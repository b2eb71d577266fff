#pragma once

#include <string>

namespace tarn {
class ITarnPropertyInfo;
} // namespace tarn

namespace tarnnuq {

class ValueTexts;

/// GetStorageTypeAndDispTypeFromPropertyInfo() for a caller that looks at the value texts, too.
/// @param valueTexts the value texts of the same property
void TypeProperty(const tarn::ITarnPropertyInfo& info, ValueTexts& valueTexts, std::wstring& valueType,
    std::wstring& parameterType, std::wstring& displayType);

} // namespace tarnnuq
