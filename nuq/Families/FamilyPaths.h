#pragma once

#include "Program/ExitCode.h"

#include <QString>
#include <QStringList>

namespace nuq {

class Session;

/**
 * The family files that an argument names: the file itself, or all below a folder with the ending ".nuqfamily", by
 * name. @return nothing with @p code set when there is none
 */
QStringList FamilyPaths(Session& session, const QString& path, ExitCode& code);

} // namespace nuq
