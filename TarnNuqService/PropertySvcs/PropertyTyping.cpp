#include "PropertySvcs/PropertyTyping.h"

#include "Common/DebugWarning.h"
#include "PropertySvcs/PropertyTyping_p.h"
#include "PropertySvcs/ValueTexts_p.h"

#include <array>
#include <cstdint>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "PropertySvcs/PropertyTyping.cpp", __LINE__, "tarnnuq::GetStorageTypeAndDispTypeFromPropertyInfo"};

struct StorageWords
{
    const wchar_t* valueType;
    const wchar_t* parameterType;
};

constexpr std::int16_t IntegerStorage = 4;

constexpr std::array<StorageWords, 15> StorageTypes{{
    {L"String", L"Invalid"},
    {L"String", L"None"},
    {L"String", L"Custom"},
    {L"Logic", L"Bool"},
    {L"Number", L"Int"},
    {L"Number", L"Double"},
    {L"String", L"String"},
    {L"String", L"Coordinates"},
    {L"String", L"ElementId"},
    {L"String", L"BuildingStorey"},
    {L"String", L"Color"},
    {L"String", L"StandardCodeReference"},
    {L"String", L"Geometry"},
    {L"String", L"Guid"},
    {L"String", L"Count"},
}};

constexpr std::array<const wchar_t*, 20> DisplayTypes{{
    L"Invalid",
    L"FollowUnitType",
    L"NoDisplay",
    L"Custom",
    L"Length",
    L"Area",
    L"Volume",
    L"Angle",
    L"Slope",
    L"Number",
    L"Text",
    L"Geometry",
    L"Density",
    L"YesOrNo",
    L"Float",
    L"Material",
    L"ValueList",
    L"StandardCodeReference",
    nullptr, // the host's numbers have a gap here
    L"Count",
}};

template <typename Words, std::size_t Size>
bool Knows(const std::array<Words, Size>&, std::int16_t number)
{
    return number >= 0 && static_cast<std::size_t>(number) < Size;
}

StorageWords WordsOfStorage(std::int16_t number, ValueTexts& valueTexts)
{
    if (!Knows(StorageTypes, number)) {
        WarnNull(Source, L"eStorageType 不合法");
        return {L"String", L"String"};
    }
    const StorageWords words = StorageTypes[static_cast<std::size_t>(number)];
    if (number == IntegerStorage && !valueTexts.Get().empty()) {
        return {L"Enum", words.parameterType};
    }
    return words;
}

const wchar_t* WordOfDisplay(std::int16_t number)
{
    const wchar_t* word = Knows(DisplayTypes, number) ? DisplayTypes[static_cast<std::size_t>(number)] : nullptr;
    if (!word) {
        WarnNull(Source, L"ParameterDisplayType 不合法");
        return L"Text";
    }
    return word;
}

} // namespace

void GetStorageTypeAndDispTypeFromPropertyInfo(const tarn::ITarnPropertyInfo* info, std::wstring& valueType,
    std::wstring& parameterType, std::wstring& displayType)
{
    if (!info) {
        WarnNull(Source, L"pPropInfo 为空");
        return;
    }
    ValueTexts valueTexts(*info);
    TypeProperty(*info, valueTexts, valueType, parameterType, displayType);
}

void TypeProperty(const tarn::ITarnPropertyInfo& info, ValueTexts& valueTexts, std::wstring& valueType,
    std::wstring& parameterType, std::wstring& displayType)
{
    const StorageWords words = WordsOfStorage(info.GetStorageType(), valueTexts);
    valueType = words.valueType;
    parameterType = words.parameterType;
    displayType = WordOfDisplay(info.GetDisplayType());
}

} // namespace tarnnuq
