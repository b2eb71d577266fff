#pragma once

#include "TarnNuqServiceExport.h"

#include <map>
#include <string>

namespace tarnnuq {

/// The configured environments and the base addresses of the cloud services.
///
/// The configuration files below the host's application folder are read once, when the first operation needs them;
/// a later change of the host's environment is not noticed by the endpoints. Missing, unreadable or malformed files
/// leave texts and endpoints empty, silently. Reading them is thread-safe; everything else belongs to the main
/// thread. The one instance ends with the process. The host's logger, application service and configuration manager are
/// asked while it is made: they must not call back into the endpoints.
class TARNNUQSERVICE_EXPORT EnvService
{
public:
    /// @return the host's current design-cloud environment, asked of the host each time; empty, with a debug
    /// warning, when the host has no configuration manager
    static std::wstring GetWabCurrentEnv();

    /// @return the component-website environment that belongs to the design-cloud environment found at the start,
    /// trimmed and lower-cased; empty when none is mapped
    static std::wstring GetPyxCurrentEnv();

    /// @return the base URL of the REST API as written in the configuration; empty when there is none
    static std::wstring GetPyxApiEndPoint();

    /// @return the base URL of static resources as written in the configuration; empty when there is none
    static std::wstring GetPyxStaticEndPoint();

    /// @return the host's design-cloud endpoint "structure", asked of the host each time; empty when the host has
    /// no configuration manager
    static std::wstring GetWabStructureEndPoint();

    EnvService(const EnvService&) = delete;
    EnvService& operator=(const EnvService&) = delete;

private:
    friend class EnvServiceAccess;

    EnvService();
    ~EnvService();

    static EnvService& GetInstance();

    void Init();
    void ParseNuqEnvConfig();
    void ParseWabEnvConfig();
    void ParsePyxEnvConfig();
    void ParseEnvMap();
    void ParsePyxEndPoints();
    static std::wstring FindEndPoint(std::map<std::wstring, std::wstring>& map, std::wstring key);

    std::wstring m_appDir;
    std::wstring m_wabEnvConfigFile;
    std::wstring m_pyxEnvConfigFile;
    std::wstring m_envMapFile;
    std::wstring m_wabCurrentEnv;
    std::wstring m_pyxCurrentEnv;
    std::map<std::wstring, std::wstring> m_wabEnvSettings;
    std::map<std::wstring, std::wstring> m_pyxEndPoints;
    std::wstring m_unused; ///< Keeps the layout that hosts were built against.
    std::wstring m_pyxApiEndPoint;
    std::wstring m_pyxStaticEndPoint;
};

} // namespace tarnnuq
