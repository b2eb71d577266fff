#pragma once

#include <QString>

namespace standalone {

/// Makes a folder and its missing parents. A folder that is made here is open to its owner only; one that
/// exists keeps its permissions.
/// @return true when the folder is there afterwards
bool MakePrivateFolder(const QString& path);

} // namespace standalone
