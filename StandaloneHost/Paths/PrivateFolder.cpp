#include "Paths/PrivateFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace standalone {

bool MakePrivateFolder(const QString& path)
{
    if (QFileInfo(path).isDir()) {
        return true;
    }
    if (!QDir().mkpath(path)) {
        return false;
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return true;
}

} // namespace standalone
