#pragma once

#include "FamilyFiles/HostObjects/ParameterIdentities.h"
#include "FamilyFiles/Manifest/Value.h"
#include "zept/IFamilyParameter.h"

#include <cstddef>
#include <memory>
#include <string>

namespace familyfiles {

/// A parameter of a family type with its value, as the library works with it.
///
/// It has one value, of the kind that was set last. Asked for a number of the other kind it converts; asked for what
/// its value is not it answers no, 0 or an empty text. A value that is not of the parameter's storage type is refused
/// when the family file gets it.
class FamilyParameter final : public zept::IFamilyParameter
{
public:
    /// @param identities of the family; shared
    FamilyParameter(std::shared_ptr<const ParameterIdentities> identities, std::size_t parameter, const Value& value);

    zept::UniIdentity GetIdentity() const override;
    std::wstring GetText() const override;
    void SetText(const std::wstring& value) override;
    bool GetBool() const override;
    void SetBool(bool value) override;
    double GetDouble() const override;
    void SetDouble(double value) override;
    int GetInt() const override;
    void SetInt(int value) override;
    zept::OwnerPtr<zept::IFamilyParameter> Clone() const override;

    const Value& Current() const { return m_value; }
    /// Whether it is one of the family with these identities.
    bool IsOf(const ParameterIdentities& identities) const { return m_spIdentities.get() == &identities; }
    /// Its index among the family's parameters.
    std::size_t Index() const { return m_parameter; }

private:
    std::shared_ptr<const ParameterIdentities> m_spIdentities;
    std::size_t m_parameter;
    Value m_value;
};

} // namespace familyfiles
