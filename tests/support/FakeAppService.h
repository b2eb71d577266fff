#pragma once

#include "tarnnuq/AppService.h"

#include <string>
#include <vector>

namespace testsupport {

/// An application with answers to set; keeps the format texts with which its version was asked for.
class FakeAppService final : public tarnnuq::AppService
{
public:
    std::wstring GeFormattedProductVersion(const std::wstring& format) const override
    {
        formats.push_back(format);
        return version;
    }

    std::wstring appDir = L"/app";
    std::wstring appName = L"host";
    tarnnuq::Major major = tarnnuq::None;
    std::wstring version = L"1.0";
    mutable std::vector<std::wstring> formats;

protected:
    std::wstring DoGetAppDir() const override { return appDir; }
    std::wstring DoGetAppName() const override { return appName; }
    tarnnuq::Major DoGetMajor() const override { return major; }
};

} // namespace testsupport
