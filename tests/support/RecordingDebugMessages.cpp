#include "support/RecordingDebugMessages.h"

namespace testsupport {

void RecordingDebugMessages::ShowDebugWarn(const char* file, int line, const char* function,
    const std::wstring& message, const std::wstring& author, const std::wstring& date)
{
    m_warnings.push_back({file, line, function, message, author, date});
}

std::vector<std::wstring> RecordingDebugMessages::Messages() const
{
    std::vector<std::wstring> messages;
    for (const DebugWarning& warning : m_warnings) {
        messages.push_back(warning.message);
    }
    return messages;
}

} // namespace testsupport
