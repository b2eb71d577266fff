#include "Families/FamilyPaths.h"

#include "Commands/Texts.h"
#include "Program/Session.h"

#include <QDirIterator>
#include <QFileInfo>

namespace nuq {

QStringList FamilyPaths(Session& session, const QString& path, ExitCode& code)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList found;
    QDirIterator files(path, {QStringLiteral("*.nuqfamily")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found << files.next();
    found.sort();
    if (found.isEmpty()) {
        code = session.Fail(ExitCode::NotFound, "family.none-in-folder",
            Say(QT_TRANSLATE_NOOP("Messages", "There are no family files (*.nuqfamily) in the folder %1.")).arg(path));
    }
    return found;
}

} // namespace nuq
