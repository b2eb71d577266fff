#include "QuietHost.h"

#include <QDir>
#include <QFile>

namespace bench {

namespace {

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

} // namespace

QuietHost::QuietHost(const QString& url)
{
    const QString folder = m_appDir.path() + QLatin1String("/nuq_env_config");
    QDir().mkpath(folder);
    const QByteArray base = url.toUtf8();
    Write(folder + QLatin1String("/nuq_env_config.json"),
        R"({"pyx_env":"/nuq_env_config/pyx_env.json","env_map":"/nuq_env_config/env_map.json"})");
    Write(folder + QLatin1String("/env_map.json"), R"({"prod":"production"})");
    Write(folder + QLatin1String("/pyx_env.json"),
        R"({"production":{"api":")" + base + R"(/api","static":")" + base + R"(/static"}})");
    hostsdk::HostServices services;
    services.logger = this;
    services.appService = this;
    services.baseConfig = this;
    hostsdk::Install(services);
}

QuietHost::~QuietHost()
{
    hostsdk::Install({});
}

void QuietHost::Info(const tarnnuq::NuqLogObject&) {}
void QuietHost::Error(const tarnnuq::NuqLogObject&) {}
void QuietHost::Warn(const tarnnuq::NuqLogObject&) {}
void QuietHost::Debug(const tarnnuq::NuqLogObject&) {}

std::wstring QuietHost::DoGetAppDir() const
{
    return m_appDir.path().toStdWString();
}

std::wstring QuietHost::DoGetAppName() const
{
    return L"benchmarks";
}

tarnnuq::Major QuietHost::DoGetMajor() const
{
    return tarnnuq::None;
}

std::wstring QuietHost::GeFormattedProductVersion(const std::wstring&) const
{
    return L"0.1";
}

std::string QuietHost::GetCurrentEnv() const
{
    return "prod";
}

} // namespace bench
