#include "tarnnuq/AppService.h"

#include "hostsdk/HostServices.h"

namespace tarnnuq {

namespace {

class UnknownApp final : public AppService
{
public:
    std::wstring GeFormattedProductVersion(const std::wstring&) const override { return {}; }

protected:
    std::wstring DoGetAppDir() const override { return {}; }
    std::wstring DoGetAppName() const override { return {}; }
    Major DoGetMajor() const override { return None; }
};

} // namespace

AppService::~AppService() = default;

AppService* AppService::Get()
{
    static UnknownApp s_unknown;
    AppService* const installed = hostsdk::Installed().appService;
    return installed != nullptr ? installed : &s_unknown;
}

std::wstring AppService::GetAppDir()
{
    return Get()->DoGetAppDir();
}

std::wstring AppService::GetAppName()
{
    return Get()->DoGetAppName();
}

Major AppService::GetMajor()
{
    return Get()->DoGetMajor();
}

} // namespace tarnnuq
