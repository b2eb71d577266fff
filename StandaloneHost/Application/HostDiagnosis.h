#pragma once

#include "Accounts/TokenOrigin.h"
#include "Application/ResolvedSetting.h"
#include "Paths/HostFolders.h"
#include "Settings/SettingsState.h"

#include <QString>
#include <QStringList>

namespace standalone {

/// What a support person wants to know about a StandaloneHost. Holds no token.
struct HostDiagnosis
{
    ResolvedSetting applicationFolder;
    bool applicationFolderExists = false;

    QString settingsFile;
    SettingsState settingsState = SettingsState::Missing;
    QString settingsDetail; ///< What was wrong with the settings file; empty when nothing was.

    HostFolders folders;
    QString thumbnailFolder;
    QString logFile;  ///< Empty when none is open.
    QString logFault; ///< Why none is open although one was wanted; else empty.

    TokenOrigin productionToken;
    TokenOrigin qaToken;
    bool currentIsQa = false; ///< Whether the current environment uses the token for "qa".

    ResolvedSetting environment;
    QStringList knownEnvironments;     ///< From the environment files, sorted.
    QStringList environmentFileFaults; ///< One text a file that is missing or broken.
};

} // namespace standalone
