#pragma once

#include "support/DebugWarning.h"
#include "zept/DebugMessageMgr.h"

#include <vector>

namespace testsupport {

/// Keeps every debug warning in the order of arrival.
class RecordingDebugMessages final : public zept::DebugMessageMgr
{
public:
    void ShowDebugWarn(const char* file, int line, const char* function, const std::wstring& message,
        const std::wstring& author, const std::wstring& date) override;

    const std::vector<DebugWarning>& Warnings() const { return m_warnings; }
    /// The messages alone, in order.
    std::vector<std::wstring> Messages() const;
    void Clear() { m_warnings.clear(); }

private:
    std::vector<DebugWarning> m_warnings;
};

} // namespace testsupport
