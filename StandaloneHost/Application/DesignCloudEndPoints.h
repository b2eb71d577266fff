#pragma once

#include "wab/IWabConfigManager.h"

#include <QString>
#include <string>

namespace standalone {

class EnvironmentFiles;

/// The design cloud's endpoints in the current environment, from the environment files.
class DesignCloudEndPoints final : public wab::IWabConfigManager
{
public:
    /// @param files must outlive this object
    /// @param environment the current environment's exact name
    DesignCloudEndPoints(const EnvironmentFiles& files, const QString& environment);

    /// The base address as the file has it; empty when the environment or the endpoint is not in it.
    std::wstring GetEndPoint(const std::wstring& name) const override;

private:
    const EnvironmentFiles& m_files;
    QString m_environment;
};

} // namespace standalone
