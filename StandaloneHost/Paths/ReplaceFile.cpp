#include "Paths/ReplaceFile.h"

#include <QSaveFile>

namespace standalone {

namespace {

/// QSaveFile forgets a failed write of its own buffer and would commit a cut file: hence the flush.
bool WriteAll(QSaveFile& file, const QByteArray& content)
{
    return file.write(content) == content.size() && file.flush();
}

} // namespace

QString ReplaceFile(
    const QString& path, const QByteArray& content, const std::optional<QFileDevice::Permissions>& permissions)
{
    QSaveFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly) && (!permissions || file.setPermissions(*permissions));
    if (isOpen && WriteAll(file, content) && file.commit()) {
        return {};
    }
    return file.errorString();
}

} // namespace standalone
