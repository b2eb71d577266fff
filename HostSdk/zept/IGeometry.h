#pragma once

#include "HostSdkExport.h"

namespace zept {

/// The geometry of a family, made and understood by the host's modeller alone; the library only asks whether it is
/// there.
class HOSTSDK_EXPORT IGeometry
{
public:
    virtual ~IGeometry();
    IGeometry(const IGeometry&) = delete;
    IGeometry& operator=(const IGeometry&) = delete;

protected:
    IGeometry() = default;
};

} // namespace zept
