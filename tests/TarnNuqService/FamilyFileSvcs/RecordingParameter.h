#pragma once

#include "TarnNuqService/FamilyFileSvcs/FamilyCalls.h"
#include "zept/IFamilyParameter.h"

#include <string>
#include <utility>

namespace testsupport {

/// A family parameter with a value of each kind that notes what is asked of it.
class RecordingParameter final : public zept::IFamilyParameter
{
public:
    RecordingParameter(FamilyCalls& calls, std::string itsId) : id(std::move(itsId)), m_calls(calls) {}

    zept::UniIdentity GetIdentity() const override { return zept::UniIdentity(std::wstring(id.begin(), id.end())); }
    std::wstring GetText() const override { return Noted("GetText", text); }
    void SetText(const std::wstring& value) override { Set("SetText", text, value); }
    bool GetBool() const override { return Noted("GetBool", yesNo); }
    void SetBool(bool value) override { Set("SetBool", yesNo, value); }
    double GetDouble() const override { return Noted("GetDouble", number); }
    void SetDouble(double value) override { Set("SetDouble", number, value); }
    int GetInt() const override { return Noted("GetInt", integer); }
    void SetInt(int value) override { Set("SetInt", integer, value); }
    zept::OwnerPtr<zept::IFamilyParameter> Clone() const override
    {
        m_calls.Note(id + ".Clone");
        return zept::OwnerPtr<zept::IFamilyParameter>(clones ? new RecordingParameter(*this) : nullptr);
    }

    std::string id;
    std::wstring text = L"untouched";
    bool yesNo = false;
    double number = -77;
    int integer = -77;
    /// False: the host has no copy to give.
    bool clones = true;

private:
    template <typename Value>
    const Value& Noted(const char* operation, const Value& value) const
    {
        m_calls.Note(id + '.' + operation);
        return value;
    }

    template <typename Value>
    void Set(const char* operation, Value& member, const Value& value)
    {
        m_calls.Note(id + '.' + operation);
        member = value;
    }

    FamilyCalls& m_calls;
};

} // namespace testsupport
