#include "tarnnuq/UserService.h"

#include "hostsdk/HostServices.h"

namespace tarnnuq {

namespace {

class NobodySignedIn final : public UserService
{
public:
    std::wstring GetToken() const override { return {}; }
    std::wstring GetTokenInQa() const override { return {}; }
    int GetPermissionInCollaborationProject(const std::wstring&, const std::wstring&) const override { return 0; }
};

} // namespace

UserService::~UserService() = default;

UserService* UserService::Get()
{
    static NobodySignedIn s_nobody;
    UserService* const installed = hostsdk::Installed().userService;
    return installed != nullptr ? installed : &s_nobody;
}

} // namespace tarnnuq
