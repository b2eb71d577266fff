#include "Common/DebugWarning.h"

#include "zept/DebugMessageMgr.h"

namespace tarnnuq {

void WarnNull(const WarningSource& source, int line, const wchar_t* message, const wchar_t* date)
{
    zept::DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(
        source.file, line, source.function, message, L"tarnnuq", date);
}

} // namespace tarnnuq
