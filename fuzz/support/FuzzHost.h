#pragma once

#include "hostsdk/HostServices.h"
#include "tarnnuq/AppService.h"
#include "wab/IBaseConfigManager.h"

#include <QByteArray>
#include <QTemporaryDir>

namespace fuzz {

/// A host whose application folder holds whatever configuration files a target writes into it. Installed for the
/// rest of the process.
class FuzzHost : public tarnnuq::AppService, public wab::IBaseConfigManager
{
public:
    /// @return the one host of this process, with endpoints configured
    static FuzzHost& Get();

    /// Replaces a configuration file.
    /// @param name file name below nuq_env_config
    void Write(const char* name, const QByteArray& content) const;

    std::wstring DoGetAppDir() const override;
    std::wstring DoGetAppName() const override;
    tarnnuq::Major DoGetMajor() const override;
    std::wstring GeFormattedProductVersion(const std::wstring& format) const override;
    std::string GetCurrentEnv() const override;

private:
    FuzzHost();

    QTemporaryDir m_appDir;
};

} // namespace fuzz
