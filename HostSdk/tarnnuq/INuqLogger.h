#pragma once

#include "HostSdkExport.h"

namespace tarnnuq {

class NuqLogObject;

/**
 * The host's log. Every log record of the library goes through it.
 *
 * Implemented by the host and put into hostsdk::HostServices::logger; the host owns it. The library calls it on the
 * thread that called the library. An implementation must not throw: records are also written while errors are handled.
 * The order of the operations is part of the interface.
 */
class HOSTSDK_EXPORT INuqLogger
{
public:
    virtual ~INuqLogger();
    INuqLogger(const INuqLogger&) = delete;
    INuqLogger& operator=(const INuqLogger&) = delete;

    /// The installed logger, or one that drops every record when there is none. Never null.
    static INuqLogger* Get();

    /// Records what was done: request addresses, successful replies with their bodies, configuration contents.
    virtual void Info(const NuqLogObject& record) = 0;
    /// Records what failed: transport, HTTP, parse and envelope errors.
    virtual void Error(const NuqLogObject& record) = 0;
    /// Records what looks wrong but does not stop anything.
    virtual void Warn(const NuqLogObject& record) = 0;
    /// Records details for finding faults. The value of the Authorization header arrives here unmasked; masking is
    /// the host's affair.
    virtual void Debug(const NuqLogObject& record) = 0;

protected:
    INuqLogger() = default;
};

} // namespace tarnnuq
