#include "tarn/CollaborationProjectSettingForPS.h"

#include "hostsdk/HostServices.h"

namespace tarn {

CollaborationProjectSettingForPS::~CollaborationProjectSettingForPS() = default;

CollaborationProjectSettingForPS* CollaborationProjectSettingForPS::Instance()
{
    return hostsdk::Installed().collaborationSettings;
}

} // namespace tarn
