#include "tarn/TarnCollaborationWithNetworkUtils.h"

#include "hostsdk/HostServices.h"

namespace tarn {

TarnCollaborationWithNetworkUtils::~TarnCollaborationWithNetworkUtils() = default;

std::wstring TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(const std::wstring& projectId)
{
    const TarnCollaborationWithNetworkUtils* const installed = hostsdk::Installed().collaborationNetwork;
    return installed != nullptr ? installed->DoGetProjectNameByProjectId(projectId) : std::wstring();
}

} // namespace tarn
