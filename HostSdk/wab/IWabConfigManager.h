#pragma once

#include "HostSdkExport.h"

#include <string>

namespace wab {

/**
 * Names the design cloud's endpoints in the current environment.
 *
 * Implemented by the host and put into hostsdk::HostServices::wabConfig; the host owns it.
 */
class HOSTSDK_EXPORT IWabConfigManager
{
public:
    virtual ~IWabConfigManager();
    IWabConfigManager(const IWabConfigManager&) = delete;
    IWabConfigManager& operator=(const IWabConfigManager&) = delete;

    /// The installed manager, or null when the host has none.
    static IWabConfigManager* Get();

    /**
     * The base address of an endpoint.
     *
     * @param name the endpoint's name, for example "structure".
     * @return the address, or an empty text when there is no such endpoint.
     */
    virtual std::wstring GetEndPoint(const std::wstring& name) const = 0;

protected:
    IWabConfigManager() = default;
};

} // namespace wab
