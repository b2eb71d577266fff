#include "wab/IWabConfigManager.h"

#include "hostsdk/HostServices.h"

namespace wab {

IWabConfigManager::~IWabConfigManager() = default;

IWabConfigManager* IWabConfigManager::Get()
{
    return hostsdk::Installed().wabConfig;
}

} // namespace wab
