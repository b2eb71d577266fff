#pragma once

#include "HostSdkExport.h"

namespace tarn {

/**
 * Tells whether the network is reachable.
 *
 * Implemented by the host and put into hostsdk::HostServices::networkCheck; the host owns it.
 */
class HOSTSDK_EXPORT INetworkCheck
{
public:
    virtual ~INetworkCheck();
    INetworkCheck(const INetworkCheck&) = delete;
    INetworkCheck& operator=(const INetworkCheck&) = delete;

    /// The installed check, or one that is never connected when there is none. Never null.
    static INetworkCheck* Get();

    /// True when the network is reachable now. Called on the GUI thread: it must answer at once.
    virtual bool IsConnected() = 0;

protected:
    INetworkCheck() = default;
};

} // namespace tarn
