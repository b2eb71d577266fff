#pragma once

#include "HostSdkExport.h"

#include <string>

namespace tarn {

/**
 * The collaboration project that is open in the host.
 *
 * Implemented by the host and put into hostsdk::HostServices::collaborationSettings; the host owns it.
 */
class HOSTSDK_EXPORT CollaborationProjectSettingForPS
{
public:
    virtual ~CollaborationProjectSettingForPS();
    CollaborationProjectSettingForPS(const CollaborationProjectSettingForPS&) = delete;
    CollaborationProjectSettingForPS& operator=(const CollaborationProjectSettingForPS&) = delete;

    /// The installed settings, or null when the host has none.
    static CollaborationProjectSettingForPS* Instance();

    /// The id of the project that is open for collaboration; empty when none is.
    virtual std::wstring GetWorkingProjectId() const = 0;

protected:
    CollaborationProjectSettingForPS() = default;
};

} // namespace tarn
