#pragma once

#include "zept/IFamilyParameter.h"

#include <string>
#include <utility>

namespace testsupport {

/// A family parameter that keeps a value of each kind.
class FakeFamilyParameter final : public zept::IFamilyParameter
{
public:
    explicit FakeFamilyParameter(zept::UniIdentity itsIdentity) : identity(std::move(itsIdentity)) {}

    zept::UniIdentity GetIdentity() const override { return identity; }
    std::wstring GetText() const override { return text; }
    void SetText(const std::wstring& value) override { text = value; }
    bool GetBool() const override { return yesNo; }
    void SetBool(bool value) override { yesNo = value; }
    double GetDouble() const override { return number; }
    void SetDouble(double value) override { number = value; }
    int GetInt() const override { return integer; }
    void SetInt(int value) override { integer = value; }
    zept::OwnerPtr<zept::IFamilyParameter> Clone() const override
    {
        return zept::OwnerPtr<zept::IFamilyParameter>(new FakeFamilyParameter(*this));
    }

    zept::UniIdentity identity;
    std::wstring text;
    bool yesNo = false;
    double number = 0;
    int integer = 0;
};

} // namespace testsupport
