#include "wab/IBaseConfigManager.h"

#include "hostsdk/HostServices.h"

namespace wab {

IBaseConfigManager::~IBaseConfigManager() = default;

IBaseConfigManager* IBaseConfigManager::Get()
{
    return hostsdk::Installed().baseConfig;
}

} // namespace wab
