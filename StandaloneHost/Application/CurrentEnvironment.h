#pragma once

#include "Application/ResolvedSetting.h"
#include "wab/IBaseConfigManager.h"

#include <QString>
#include <string>

namespace standalone {

class SettingsStore;

/// The environment in which the program works: the given one, else the one that the environment variable
/// NUQ_ENVIRONMENT names, else the settings' "environment", else "prod".
///
/// Blanks around a name are dropped, and a name of blanks counts as not given; letter case is kept, because the
/// environment files are asked for the exact name. Chosen once, at construction; usable from every thread.
class CurrentEnvironment final : public wab::IBaseConfigManager
{
public:
    /// @param given the value of the option --environment
    /// @param settings asked for "environment"
    CurrentEnvironment(const QString& given, const SettingsStore& settings);

    std::string GetCurrentEnv() const override;

    /// The name with the place it came from.
    const ResolvedSetting& Resolved() const;

    /// Whether this is the test environment "qa", in any letter case, which has tokens of its own.
    bool IsQa() const;

private:
    ResolvedSetting m_resolved;
};

} // namespace standalone
