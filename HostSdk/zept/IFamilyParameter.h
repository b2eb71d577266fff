#pragma once

#include "HostSdkExport.h"
#include "zept/OwnerPtr.h"
#include "zept/UniIdentity.h"

#include <string>

namespace zept {

/**
 * One parameter of a family type with its value.
 *
 * Implemented by the host. Which of the four values is meant follows from the storage type of the parameter's
 * definition; the others are the implementation's affair. The order of the operations is part of the interface.
 */
class HOSTSDK_EXPORT IFamilyParameter
{
public:
    virtual ~IFamilyParameter();

    /// The identity of the parameter's definition.
    virtual UniIdentity GetIdentity() const = 0;

    virtual std::wstring GetText() const = 0;
    virtual void SetText(const std::wstring& value) = 0;
    virtual bool GetBool() const = 0;
    virtual void SetBool(bool value) = 0;
    virtual double GetDouble() const = 0;
    virtual void SetDouble(double value) = 0;
    virtual int GetInt() const = 0;
    virtual void SetInt(int value) = 0;

    /// An independent copy, owned by the caller.
    virtual OwnerPtr<IFamilyParameter> Clone() const = 0;

protected:
    IFamilyParameter() = default;
    IFamilyParameter(const IFamilyParameter&) = default;
    IFamilyParameter& operator=(const IFamilyParameter&) = default;
};

} // namespace zept
