#include "Application/LibraryFolder.h"

#include "Settings/SettingsStore.h"

#include <QDir>
#include <QFileInfo>

namespace standalone {

namespace {

QString Absolute(const QString& folder)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(folder));
}

} // namespace

ResolvedSetting FindLibraryFolder(
    const SettingsStore& settings, const QString& applicationFolder, const QString& programFolder)
{
    using Origin = ResolvedSetting::Origin;
    const QString variable = qEnvironmentVariable("NUQ_LIBRARY");
    if (!variable.isEmpty()) {
        return {Absolute(variable), Origin::EnvironmentVariable, QStringLiteral("environment variable NUQ_LIBRARY")};
    }
    const QString setting = settings.Text(QStringLiteral("library"));
    if (!setting.isEmpty()) {
        return {Absolute(setting), Origin::Settings, QStringLiteral("setting \"library\"")};
    }
    const QString ofApplication = applicationFolder + QStringLiteral("/library");
    const QString installed = Absolute(programFolder + QStringLiteral("/../share/tarnnuq/library"));
    const QString database = QStringLiteral("/components.db");
    if (!QFileInfo::exists(ofApplication + database) && QFileInfo::exists(installed + database)) {
        return {installed, Origin::Default, QStringLiteral("installed share folder")};
    }
    return {ofApplication, Origin::Default, QStringLiteral("application folder")};
}

} // namespace standalone
