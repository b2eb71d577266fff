#pragma once

#include "Application/ResolvedSetting.h"

#include <QString>

namespace standalone {

/// Finds the application folder, under which the environment files lie: the given one, else the one that the
/// environment variable NUQ_APP_DIR names, else the share folder that is installed beside the program
/// ("<program's folder>/../share/tarnnuq", which is right in a build tree too). An empty text counts as not given.
///
/// The result is absolute, without "." and ".." and without a slash at its end, because the configuration's
/// relative paths, which begin with a slash, are appended directly; the file system's root is therefore the
/// empty text. The folder need not exist.
/// @param given the value of the option --app-dir; relative to the current folder
/// @param programFolder the folder of the running program, absolute
ResolvedSetting FindApplicationFolder(const QString& given, const QString& programFolder);

} // namespace standalone
