#pragma once

#include "tarnnuq/INuqLogger.h"
#include "zept/DebugMessageMgr.h"

namespace standalone {

/// Writes the library's debug warnings into the log, as warnings of the form
/// "debug warning: <message> (<file>:<line>, <function>, <author>, <date>)".
///
/// May be called from several threads at once, as far as the logger may.
class DebugWarnings final : public zept::DebugMessageMgr
{
public:
    /// @param logger where the warnings go; must outlive this object
    explicit DebugWarnings(tarnnuq::INuqLogger& logger);

    /// Null file or function texts are written as empty ones.
    void ShowDebugWarn(const char* file, int line, const char* function, const std::wstring& message,
        const std::wstring& author, const std::wstring& date) override;

private:
    tarnnuq::INuqLogger& m_logger;
};

} // namespace standalone
