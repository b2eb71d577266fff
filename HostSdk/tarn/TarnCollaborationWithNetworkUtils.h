#pragma once

#include "HostSdkExport.h"

#include <string>

namespace tarn {

/**
 * What the host knows about collaboration projects from the network.
 *
 * Implemented by the host and put into hostsdk::HostServices::collaborationNetwork; the host owns it.
 */
class HOSTSDK_EXPORT TarnCollaborationWithNetworkUtils
{
public:
    virtual ~TarnCollaborationWithNetworkUtils();
    TarnCollaborationWithNetworkUtils(const TarnCollaborationWithNetworkUtils&) = delete;
    TarnCollaborationWithNetworkUtils& operator=(const TarnCollaborationWithNetworkUtils&) = delete;

    /**
     * The display name of a collaboration project.
     *
     * @param projectId the project's id.
     * @return the name; empty for an unknown project and without an installed object.
     */
    static std::wstring GetProjectNameByProjectId(const std::wstring& projectId);

protected:
    TarnCollaborationWithNetworkUtils() = default;

    /// Answers GetProjectNameByProjectId().
    virtual std::wstring DoGetProjectNameByProjectId(const std::wstring& projectId) const = 0;
};

} // namespace tarn
