#include "tarn/INetworkCheck.h"

#include "hostsdk/HostServices.h"

namespace tarn {

namespace {

class NeverConnected final : public INetworkCheck
{
public:
    bool IsConnected() override { return false; }
};

} // namespace

INetworkCheck::~INetworkCheck() = default;

INetworkCheck* INetworkCheck::Get()
{
    static NeverConnected s_neverConnected;
    INetworkCheck* const installed = hostsdk::Installed().networkCheck;
    return installed != nullptr ? installed : &s_neverConnected;
}

} // namespace tarn
