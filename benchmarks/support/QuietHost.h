#pragma once

#include "hostsdk/HostServices.h"
#include "tarnnuq/AppService.h"
#include "tarnnuq/INuqLogger.h"
#include "wab/IBaseConfigManager.h"

#include <QTemporaryDir>

namespace bench {

/// A host with endpoints and a logger that drops its records, so that only the library is measured.
class QuietHost : public tarnnuq::INuqLogger, public tarnnuq::AppService, public wab::IBaseConfigManager
{
public:
    /// @param url base address of a running server, or any text when nothing is requested
    explicit QuietHost(const QString& url = QStringLiteral("http://127.0.0.1"));
    ~QuietHost() override;

    void Info(const tarnnuq::NuqLogObject& record) override;
    void Error(const tarnnuq::NuqLogObject& record) override;
    void Warn(const tarnnuq::NuqLogObject& record) override;
    void Debug(const tarnnuq::NuqLogObject& record) override;
    std::wstring DoGetAppDir() const override;
    std::wstring DoGetAppName() const override;
    tarnnuq::Major DoGetMajor() const override;
    std::wstring GeFormattedProductVersion(const std::wstring& format) const override;
    std::string GetCurrentEnv() const override;

private:
    QTemporaryDir m_appDir;
};

} // namespace bench
