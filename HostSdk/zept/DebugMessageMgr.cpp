#include "zept/DebugMessageMgr.h"

#include "hostsdk/HostServices.h"

namespace zept {

namespace {

class SilentDebugMessages final : public DebugMessageMgr
{
public:
    void ShowDebugWarn(
        const char*, int, const char*, const std::wstring&, const std::wstring&, const std::wstring&) override
    {
    }
};

} // namespace

DebugMessageMgr::~DebugMessageMgr() = default;

DebugMessageMgr* DebugMessageMgr::GetDebugMessageMgr()
{
    static SilentDebugMessages s_silent;
    DebugMessageMgr* const installed = hostsdk::Installed().debugMessages;
    return installed != nullptr ? installed : &s_silent;
}

} // namespace zept
