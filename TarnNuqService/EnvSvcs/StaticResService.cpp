#include "EnvSvcs/StaticResService.h"

#include "EnvSvcs/EnvService.h"

namespace tarnnuq {

// By value, as hosts call it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
std::wstring StaticResService::GetStaticResource(std::wstring path)
{
    const std::wstring endPoint = EnvService::GetPyxStaticEndPoint();
    if (path.empty() || path.front() == L'/') {
        return endPoint + path;
    }
    return endPoint + L"/" + path;
}

} // namespace tarnnuq
