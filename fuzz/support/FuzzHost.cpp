#include "FuzzHost.h"

#include <QDir>
#include <QFile>
#include <cstdlib>

namespace fuzz {

FuzzHost& FuzzHost::Get()
{
    static FuzzHost host;
    return host;
}

FuzzHost::FuzzHost()
{
    QDir(m_appDir.path()).mkdir(QStringLiteral("nuq_env_config"));
    Write("nuq_env_config.json", R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json",)"
                                 R"("env_map":"/nuq_env_config/env_map.json"})");
    Write("wab_env.xml", "<envs><env name=\"prod\"/></envs>");
    Write("env_map.json", R"({"prod":"production"})");
    Write("pyx_env.json", R"({"production":{"api":"http://h/api","static":"http://h/static"}})");
    hostsdk::HostServices services;
    services.appService = this;
    services.baseConfig = this;
    hostsdk::Install(services);
}

void FuzzHost::Write(const char* name, const QByteArray& content) const
{
    QFile file(m_appDir.path() + QLatin1String("/nuq_env_config/") + QLatin1String(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        std::abort();
    }
}

std::wstring FuzzHost::DoGetAppDir() const
{
    return m_appDir.path().toStdWString();
}

std::wstring FuzzHost::DoGetAppName() const
{
    return L"fuzz";
}

tarnnuq::Major FuzzHost::DoGetMajor() const
{
    return tarnnuq::None;
}

std::wstring FuzzHost::GeFormattedProductVersion(const std::wstring&) const
{
    return L"0.1";
}

std::string FuzzHost::GetCurrentEnv() const
{
    return "prod";
}

} // namespace fuzz
