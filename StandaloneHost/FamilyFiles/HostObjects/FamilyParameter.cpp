#include "FamilyFiles/HostObjects/FamilyParameter.h"

#include "FamilyFiles/Utf8.h"

#include <limits>
#include <utility>

namespace familyfiles {

FamilyParameter::FamilyParameter(
    std::shared_ptr<const ParameterIdentities> identities, std::size_t parameter, const Value& value)
    : m_spIdentities(std::move(identities)), m_parameter(parameter), m_value(value)
{
}

zept::UniIdentity FamilyParameter::GetIdentity() const
{
    return m_spIdentities->At(m_parameter);
}

std::wstring FamilyParameter::GetText() const
{
    const auto* const text = std::get_if<std::string>(&m_value);
    return text != nullptr ? WideText(*text) : std::wstring();
}

void FamilyParameter::SetText(const std::wstring& value)
{
    m_value = Utf8Text(value);
}

bool FamilyParameter::GetBool() const
{
    const auto* const yesNo = std::get_if<bool>(&m_value);
    return yesNo != nullptr && *yesNo;
}

void FamilyParameter::SetBool(bool value)
{
    m_value = value;
}

double FamilyParameter::GetDouble() const
{
    if (const auto* const integer = std::get_if<int>(&m_value)) {
        return *integer;
    }
    const auto* const number = std::get_if<double>(&m_value);
    return number != nullptr ? *number : 0.0;
}

void FamilyParameter::SetDouble(double value)
{
    m_value = value;
}

int FamilyParameter::GetInt() const
{
    if (const auto* const number = std::get_if<double>(&m_value)) {
        const bool fits = *number >= std::numeric_limits<int>::min() && *number <= std::numeric_limits<int>::max();
        return fits ? static_cast<int>(*number) : 0;
    }
    const auto* const integer = std::get_if<int>(&m_value);
    return integer != nullptr ? *integer : 0;
}

void FamilyParameter::SetInt(int value)
{
    m_value = value;
}

zept::OwnerPtr<zept::IFamilyParameter> FamilyParameter::Clone() const
{
    return zept::OwnerPtr<zept::IFamilyParameter>(new FamilyParameter(*this));
}

} // namespace familyfiles
