#include "Application/CurrentEnvironment.h"

#include "Settings/SettingsStore.h"

namespace standalone {

namespace {

ResolvedSetting Resolve(const QString& given, const SettingsStore& settings)
{
    using Origin = ResolvedSetting::Origin;
    const ResolvedSetting candidates[] = {
        {given.trimmed(), Origin::Option, QStringLiteral("option --environment")},
        {qEnvironmentVariable("NUQ_ENVIRONMENT").trimmed(), Origin::EnvironmentVariable,
            QStringLiteral("environment variable NUQ_ENVIRONMENT")},
        {settings.Text(QStringLiteral("environment")).trimmed(), Origin::Settings, QStringLiteral("settings")},
    };
    for (const ResolvedSetting& candidate : candidates) {
        if (!candidate.value.isEmpty()) {
            return candidate;
        }
    }
    return {QStringLiteral("prod"), Origin::Default, QStringLiteral("default")};
}

} // namespace

CurrentEnvironment::CurrentEnvironment(const QString& given, const SettingsStore& settings)
    : m_resolved(Resolve(given, settings))
{
}

std::string CurrentEnvironment::GetCurrentEnv() const
{
    return m_resolved.value.toStdString();
}

const ResolvedSetting& CurrentEnvironment::Resolved() const
{
    return m_resolved;
}

bool CurrentEnvironment::IsQa() const
{
    return m_resolved.value.compare(QLatin1String("qa"), Qt::CaseInsensitive) == 0;
}

} // namespace standalone
