#pragma once

#include "Logging/LogLevel.h"
#include "tarnnuq/Major.h"

#include <QString>
#include <optional>

namespace standalone {

/// What a program tells its StandaloneHost. Everything but the name may be left out.
struct StandaloneHostOptions
{
    /// The program's name, "nuq"; answers AppService::GetAppName() and names the log file.
    QString programName;
    /// The value of --app-dir; empty: not given.
    QString appDir;
    /// The value of --environment; empty: not given.
    QString environment;
    /// The trade; not given: the settings' "major", else none.
    std::optional<tarnnuq::Major> major;
    /// What the log file takes; not given: the settings' "log/fileLevel", else info.
    std::optional<LogLevel> fileLevel;
    /// What standard error takes; not given: the settings' "log/consoleLevel", else warning.
    std::optional<LogLevel> consoleLevel;
    /// The language of names in the component database, "zh" or "en"; empty: Chinese.
    QString language;
    /// The folders for settings and tokens, thumbnails, fetched families, and logs; empty: those of the
    /// platform, see HostFolders. Relative paths are taken from the current folder.
    QString configFolder;
    QString cacheFolder;
    QString dataFolder;
    QString stateFolder;
    /// The folder of the running program; empty: asked of QCoreApplication.
    QString programFolder;
};

} // namespace standalone
