#pragma once

#include "EnvSvcs/EnvService.h"

namespace tarnnuq {

/// What the environment keeps to itself: the collected maps, the search in them, and reading the files again.
class EnvServiceAccess
{
public:
    static const std::map<std::wstring, std::wstring>& WabSettings()
    {
        return EnvService::GetInstance().m_wabEnvSettings;
    }
    static const std::map<std::wstring, std::wstring>& PyxEndPoints()
    {
        return EnvService::GetInstance().m_pyxEndPoints;
    }
    static std::wstring FindEndPoint(std::map<std::wstring, std::wstring> map, const std::wstring& key)
    {
        return EnvService::FindEndPoint(map, key);
    }
    static void ReadFilesAgain() { EnvService::GetInstance().Init(); }
};

} // namespace tarnnuq
