#pragma once

#include "HostSdkExport.h"

#include <string>

namespace tarnnuq {

/**
 * The user who is signed in to the cloud.
 *
 * Implemented by the host and put into hostsdk::HostServices::userService; the host owns it.
 */
class HOSTSDK_EXPORT UserService
{
public:
    virtual ~UserService();
    UserService(const UserService&) = delete;
    UserService& operator=(const UserService&) = delete;

    /// The installed service, or one without a user (empty tokens, permission 0) when there is none. Never null.
    static UserService* Get();

    /// The access token of every environment but "qa"; empty when nobody is signed in. Sent exactly as it is.
    virtual std::wstring GetToken() const = 0;
    /// The access token of the environment "qa", without a scheme word; empty when nobody is signed in.
    virtual std::wstring GetTokenInQa() const = 0;

    /**
     * What the user may do in a collaboration project.
     *
     * @param projectId the project, as the collaboration settings name it.
     * @param moduleCode the module whose permission is asked for; "MUZ" is the component library.
     * @return the level on the host's own scale; 0 is none or unknown.
     */
    virtual int GetPermissionInCollaborationProject(
        const std::wstring& projectId, const std::wstring& moduleCode) const = 0;

protected:
    UserService() = default;
};

} // namespace tarnnuq
