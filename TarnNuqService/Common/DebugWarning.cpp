#include "Common/DebugWarning.h"

#include "zept/DebugMessageMgr.h"

namespace tarnnuq {

void WarnNull(const WarningSource& source, const wchar_t* message, const wchar_t* date) noexcept
{
    try {
        zept::DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(
            source.file, source.line, source.function, message, L"tarnnuq", date);
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace tarnnuq
