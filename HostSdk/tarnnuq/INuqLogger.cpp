#include "tarnnuq/INuqLogger.h"

#include "hostsdk/HostServices.h"

namespace tarnnuq {

namespace {

class SilentLogger final : public INuqLogger
{
public:
    void Info(const NuqLogObject&) override {}
    void Error(const NuqLogObject&) override {}
    void Warn(const NuqLogObject&) override {}
    void Debug(const NuqLogObject&) override {}
};

} // namespace

INuqLogger::~INuqLogger() = default;

INuqLogger* INuqLogger::Get()
{
    static SilentLogger s_silent;
    INuqLogger* const installed = hostsdk::Installed().logger;
    return installed != nullptr ? installed : &s_silent;
}

} // namespace tarnnuq
