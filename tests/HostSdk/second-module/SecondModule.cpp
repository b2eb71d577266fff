#include "hostsdk/HostServices.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"
#include "zept/IGeometry.h"
#include "zept/OwnerPtr.h"

#include <typeinfo>

#if defined(_WIN32)
#define SECOND_MODULE_EXPORT extern "C" __declspec(dllexport)
#else
#define SECOND_MODULE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

class ModuleGeometry final : public zept::IGeometry
{
public:
    explicit ModuleGeometry(int& alive) : m_alive(alive) { ++m_alive; }
    ~ModuleGeometry() override { --m_alive; }

private:
    int& m_alive;
};

} // namespace

SECOND_MODULE_EXPORT const hostsdk::HostServices* SecondModuleTable()
{
    return &hostsdk::Installed();
}

SECOND_MODULE_EXPORT tarnnuq::INuqLogger* SecondModuleLogger()
{
    return tarnnuq::INuqLogger::Get();
}

SECOND_MODULE_EXPORT void SecondModuleLog(const char* text)
{
    tarnnuq::INuqLogger::Get()->Warn({"second module: ", text});
}

SECOND_MODULE_EXPORT void SecondModuleInstall(tarnnuq::INuqLogger* logger)
{
    hostsdk::HostServices services;
    services.logger = logger;
    hostsdk::Install(services);
}

SECOND_MODULE_EXPORT void SecondModuleMakeGeometry(zept::OwnerPtr<zept::IGeometry>* made, int* alive)
{
    *made = zept::OwnerPtr<zept::IGeometry>(new ModuleGeometry(*alive));
}

SECOND_MODULE_EXPORT void* SecondModuleAsGeometry(zept::IGeometry* geometry)
{
    return dynamic_cast<ModuleGeometry*>(geometry);
}

SECOND_MODULE_EXPORT const std::type_info* SecondModuleLoggerType()
{
    return &typeid(tarnnuq::INuqLogger);
}
