#pragma once

#include "HostSdkExport.h"

#include <string>

namespace zept {

/**
 * Shows debug warnings to the host's developers: a required object was unexpectedly missing.
 *
 * Implemented by the host and put into hostsdk::HostServices::debugMessages; the host owns it. A warning never stops
 * the caller; an implementation must not throw.
 */
class HOSTSDK_EXPORT DebugMessageMgr
{
public:
    virtual ~DebugMessageMgr();
    DebugMessageMgr(const DebugMessageMgr&) = delete;
    DebugMessageMgr& operator=(const DebugMessageMgr&) = delete;

    /// The installed object, or one that drops every warning when there is none. Never null.
    static DebugMessageMgr* GetDebugMessageMgr();

    /**
     * Shows one warning.
     *
     * @param file the source file's path from the library's folder, in UTF-8.
     * @param line the line in that file.
     * @param function the qualified name of the function, in UTF-8.
     * @param message what is missing.
     * @param author the author tag.
     * @param date the date tag, for example "2022-01-25".
     */
    virtual void ShowDebugWarn(const char* file, int line, const char* function, const std::wstring& message,
        const std::wstring& author, const std::wstring& date) = 0;

protected:
    DebugMessageMgr() = default;
};

} // namespace zept
