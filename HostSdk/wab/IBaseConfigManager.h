#pragma once

#include "HostSdkExport.h"

#include <string>

namespace wab {

/**
 * Names the environment of the design cloud in which the host works.
 *
 * Implemented by the host and put into hostsdk::HostServices::baseConfig; the host owns it.
 */
class HOSTSDK_EXPORT IBaseConfigManager
{
public:
    virtual ~IBaseConfigManager();
    IBaseConfigManager(const IBaseConfigManager&) = delete;
    IBaseConfigManager& operator=(const IBaseConfigManager&) = delete;

    /// The installed manager, or null when the host has none.
    static IBaseConfigManager* Get();

    /// The current environment's name in UTF-8, for example "qa" or "prod"; asked for again at each use.
    virtual std::string GetCurrentEnv() const = 0;

protected:
    IBaseConfigManager() = default;
};

} // namespace wab
