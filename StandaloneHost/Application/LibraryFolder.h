#pragma once

#include "Application/ResolvedSetting.h"

#include <QString>

namespace standalone {

class SettingsStore;

/// Finds the folder of the component library on this machine, with its database and pictures: the one that the
/// environment variable NUQ_LIBRARY names, else the setting "library", else "library" in the application folder, else,
/// when there is no database in it, the one in the share folder that is installed beside the program. The folder need
/// not exist.
/// @param programFolder the folder of the running program, absolute
ResolvedSetting FindLibraryFolder(
    const SettingsStore& settings, const QString& applicationFolder, const QString& programFolder);

} // namespace standalone
