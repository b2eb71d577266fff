#pragma once

#include "HostSdkExport.h"

namespace tarn {

class ITarnCategoryInfoUtils;

/// The way to the host's category library. One object a process; it holds nothing itself.
class TarnCategoryInfoUtilsHandler
{
public:
    TarnCategoryInfoUtilsHandler(const TarnCategoryInfoUtilsHandler&) = delete;
    TarnCategoryInfoUtilsHandler& operator=(const TarnCategoryInfoUtilsHandler&) = delete;

    /// The handler; always there, whether or not a host is installed.
    HOSTSDK_EXPORT static TarnCategoryInfoUtilsHandler& Get();

    /// The installed category library, or null when the host has none. Owned by the host.
    HOSTSDK_EXPORT ITarnCategoryInfoUtils* GetUtils();

private:
    TarnCategoryInfoUtilsHandler() = default;
};

} // namespace tarn
