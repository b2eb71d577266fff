#include "ProjectSvcs/IProjectManager.h"

#include "Common/DebugWarning.h"
#include "tarn/CollaborationProjectSettingForPS.h"
#include "tarn/INetworkCheck.h"
#include "tarn/TarnCollaborationWithNetworkUtils.h"
#include "tarnnuq/AppService.h"
#include "tarnnuq/UserService.h"

namespace tarnnuq {

namespace {

constexpr WarningSource PermissionSource{
    "ProjectSvcs/IProjectManager.cpp", __LINE__, "tarnnuq::IProjectManager::GetCurrentProjectPermission"};

constexpr const wchar_t* StandaloneApplication = L"AppNuq";
// The module of the host's permissions that the component library is.
constexpr const wchar_t* ComponentLibraryModule = L"MUZ";

} // namespace

IProjectManager* IProjectManager::s_pInstance = nullptr;

IProjectManager* IProjectManager::Get()
{
    if (!s_pInstance) {
        s_pInstance = new IProjectManager(nullptr);
    }
    return s_pInstance;
}

IProjectManager::IProjectManager(QObject* parent) : QObject(parent) {}

IProjectManager::~IProjectManager() = default;

std::wstring IProjectManager::GetCurrentProjectId()
{
    if (AppService::GetAppName() == StandaloneApplication) {
        return m_debugProjectId;
    }
    const tarn::CollaborationProjectSettingForPS* pProjectSetting = tarn::CollaborationProjectSettingForPS::Instance();
    return pProjectSetting ? pProjectSetting->GetWorkingProjectId() : std::wstring();
}

int IProjectManager::GetCurrentProjectPermission()
{
    if (!tarn::INetworkCheck::Get()->IsConnected()) {
        return 0;
    }
    const tarn::CollaborationProjectSettingForPS* pProjectSetting = tarn::CollaborationProjectSettingForPS::Instance();
    if (!pProjectSetting) {
        WarnNull(PermissionSource, L"pProjectSetting为空", L"2022-01-17");
        return 0;
    }
    return UserService::Get()->GetPermissionInCollaborationProject(
        pProjectSetting->GetWorkingProjectId(), ComponentLibraryModule);
}

std::wstring IProjectManager::GetProjectNameById(const std::wstring& projectId)
{
    return tarn::TarnCollaborationWithNetworkUtils::GetProjectNameByProjectId(projectId);
}

void IProjectManager::SetDebugProjectId(const std::wstring& projectId)
{
    m_debugProjectId = projectId;
}

const std::wstring IProjectManager::GetDebugProjectId()
{
    return m_debugProjectId;
}

} // namespace tarnnuq
