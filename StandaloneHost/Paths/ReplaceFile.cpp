#include "Paths/ReplaceFile.h"

#include <QSaveFile>
#include <cerrno>

namespace standalone {

namespace {

/// QSaveFile forgets a failed write of its own buffer and would commit a cut file: hence the flush. It forgets why,
/// too.
QString WriteAll(QSaveFile& file, const QByteArray& content)
{
    errno = 0;
    if (file.write(content) == content.size() && file.flush()) {
        return {};
    }
    const int code = errno;
    return file.error() == QFileDevice::NoError && code != 0 ? qt_error_string(code) : file.errorString();
}

} // namespace

QString ReplaceFile(
    const QString& path, const QByteArray& content, const std::optional<QFileDevice::Permissions>& permissions)
{
    QSaveFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly) && (!permissions || file.setPermissions(*permissions));
    if (!isOpen) {
        return file.errorString();
    }
    const QString fault = WriteAll(file, content);
    return fault.isEmpty() && !file.commit() ? file.errorString() : fault;
}

} // namespace standalone
