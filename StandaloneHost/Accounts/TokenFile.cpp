#include "Accounts/TokenFile.h"

#include "Accounts/TokenText.h"
#include "Paths/PrivateFolder.h"
#include "Paths/ReplaceFile.h"

#include <QFile>
#include <QFileInfo>

namespace standalone {

namespace {

constexpr qint64 kLargestFile = qint64{64} << 10;
constexpr QFile::Permissions kOwnerFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions kOwnerFolder = kOwnerFile | QFile::ExeOwner;

#ifdef Q_OS_UNIX

constexpr QFile::Permissions kOthersRead = QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions kOthersWrite = QFile::WriteGroup | QFile::WriteOther;

/// Qt's owner, group and other bits have the order of the mode's, four bits apart, with a user triple between.
QString ModeText(QFile::Permissions permissions)
{
    const unsigned bits = static_cast<unsigned>(permissions);
    return QStringLiteral("mode 0%1%2%3").arg((bits >> 12U) & 7U).arg((bits >> 4U) & 7U).arg(bits & 7U);
}

QString ExposureOf(const QString& path)
{
    const QFile::Permissions file = QFile::permissions(path);
    if ((file & kOthersRead) != 0) {
        return QStringLiteral("can be read by others (%1)").arg(ModeText(file));
    }
    const QFile::Permissions folder = QFile::permissions(QFileInfo(path).absolutePath());
    const bool isShared = ((file | folder) & kOthersWrite) != 0;
    return isShared ? QStringLiteral("can be replaced by others (%1)")
                          .arg(ModeText((file & kOthersWrite) != 0 ? file : folder))
                    : QString();
}

#endif

QString CannotRead(const QString& path, const QString& reason)
{
    return QStringLiteral("cannot read the token file %1: %2").arg(path, reason);
}

} // namespace

TokenFile::TokenFile(const QString& path) : m_path(path) {}

QString TokenFile::Path() const
{
    return m_path;
}

bool TokenFile::Exists() const
{
    const QFileInfo info(m_path);
    return info.exists() || info.isSymLink();
}

QString TokenFile::Exposure() const
{
#ifdef Q_OS_UNIX
    return Exists() ? ExposureOf(m_path) : QString();
#else
    return {};
#endif
}

TokenFile::Reading TokenFile::Read() const
{
    const QFileInfo info(m_path);
    if (!info.exists()) {
        return {{}, CannotRead(m_path, QStringLiteral("it does not exist"))};
    }
    if (!info.isFile() || info.size() > kLargestFile) {
        // A pipe would be waited for without end.
        return {{}, CannotRead(m_path, QStringLiteral("it is no small regular file"))};
    }
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, CannotRead(m_path, file.errorString())};
    }
    const QString token = TokenFromBytes(file.read(kLargestFile));
    const QString fault = TokenFault(token);
    return fault.isEmpty() ? Reading{token, {}} : Reading{{}, CannotRead(m_path, fault)};
}

QString TokenFile::Write(const QString& token) const
{
    const QString fault = TokenFault(token);
    if (!fault.isEmpty()) {
        return QStringLiteral("the token is not stored: %1").arg(fault);
    }
    const QString folder = QFileInfo(m_path).path();
    if (!MakePrivateFolder(folder) || !QFile::setPermissions(folder, kOwnerFolder)) {
        return QStringLiteral("cannot make a private folder %1 for the token").arg(folder);
    }
    const QString reason = ReplaceFile(m_path, token.toUtf8() + '\n', kOwnerFile);
    return reason.isEmpty() ? QString() : QStringLiteral("cannot write the token file %1: %2").arg(m_path, reason);
}

QString TokenFile::Remove() const
{
    QFile file(m_path);
    return !Exists() || file.remove()
               ? QString()
               : QStringLiteral("cannot remove the token file %1: %2").arg(m_path, file.errorString());
}

} // namespace standalone
