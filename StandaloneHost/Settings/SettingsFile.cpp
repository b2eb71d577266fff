#include "Settings/SettingsFile.h"

#include "Paths/PrivateFolder.h"
#include "Paths/ReplaceFile.h"
#include "Settings/FileLock.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace standalone {

namespace {

constexpr int kLockWaitMs = 5000;

SettingsReading Unusable(SettingsState state, const QString& reason)
{
    return {state, {}, reason};
}

SettingsReading Parse(QByteArray content)
{
    if (content.startsWith("\xEF\xBB\xBF")) {
        content.remove(0, 3);
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(content, &fault);
    if (fault.error != QJsonParseError::NoError) {
        return Unusable(SettingsState::Damaged,
            QStringLiteral("%1 at byte %2").arg(fault.errorString(), QString::number(fault.offset)));
    }
    if (!document.isObject()) {
        return Unusable(SettingsState::Damaged, QStringLiteral("not a JSON object"));
    }
    return {SettingsState::Read, document.object(), {}};
}

SettingsReading ReadOnce(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {};
    }
    if (!info.isFile()) {
        return Unusable(SettingsState::Unreadable, QStringLiteral("not a regular file"));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        // Another process may have set it aside since the first look.
        return file.exists() ? Unusable(SettingsState::Unreadable, file.errorString()) : SettingsReading();
    }
    if (file.size() > SettingsFile::kLargestFile) {
        return Unusable(SettingsState::Damaged, QStringLiteral("larger than %1 bytes").arg(SettingsFile::kLargestFile));
    }
    const QByteArray content = file.readAll();
    return file.error() == QFileDevice::NoError ? Parse(content)
                                                : Unusable(SettingsState::Unreadable, file.errorString());
}

/// A name that no file has yet.
QString NameAside(const QString& path)
{
    const QString name = path + QStringLiteral(".damaged-") +
                         QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'hhmmss'Z'"));
    QString free = name;
    for (int number = 2; QFileInfo::exists(free); ++number) {
        free = name + QLatin1Char('-') + QString::number(number);
    }
    return free;
}

QString Replace(const QString& path, const QJsonObject& values)
{
    const QString fault = ReplaceFile(path, QJsonDocument(values).toJson(QJsonDocument::Indented));
    return fault.isEmpty() ? QString() : QStringLiteral("cannot write the settings file %1: %2").arg(path, fault);
}

QString Refusal(const QString& path, const SettingsReading& reading)
{
    return QStringLiteral("the settings file %1 cannot be used (%2); nothing was changed").arg(path, reading.detail);
}

bool IsUsable(const SettingsReading& reading)
{
    return reading.state != SettingsState::Damaged && reading.state != SettingsState::Unreadable;
}

} // namespace

SettingsFile::SettingsFile(const QString& path) : m_path(path) {}

QString SettingsFile::Path() const
{
    return m_path;
}

SettingsReading SettingsFile::Read() const
{
    SettingsReading reading = ReadOnce(m_path);
    if (reading.state != SettingsState::Damaged) {
        return reading;
    }
    FileLock lock(LockPath());
    return lock.TryLock(kLockWaitMs) ? ReadLocked() : reading;
}

QString SettingsFile::Update(const std::function<void(QJsonObject&)>& change, QJsonObject& after) const
{
    const QString folder = QFileInfo(m_path).path();
    if (!MakePrivateFolder(folder)) {
        return QStringLiteral("cannot make the settings folder %1").arg(folder);
    }
    FileLock lock(LockPath());
    if (!lock.TryLock(kLockWaitMs)) {
        return QStringLiteral("cannot lock the settings file %1; nothing was changed").arg(m_path);
    }
    const SettingsReading reading = ReadLocked();
    if (!IsUsable(reading)) {
        return Refusal(m_path, reading);
    }
    QJsonObject values = reading.values;
    change(values);
    QString fault = Replace(m_path, values);
    if (fault.isEmpty()) {
        after = values;
    }
    return fault;
}

SettingsReading SettingsFile::SetAside(const SettingsReading& damaged) const
{
    const QString aside = NameAside(m_path);
    if (!QFile::rename(m_path, aside)) {
        return damaged;
    }
    return Unusable(SettingsState::SetAside, QStringLiteral("%1; kept as %2").arg(damaged.detail, aside));
}

/// Reads under the lock, where a damaged file cannot be mended by another process between look and rename.
SettingsReading SettingsFile::ReadLocked() const
{
    const SettingsReading reading = ReadOnce(m_path);
    return reading.state == SettingsState::Damaged ? SetAside(reading) : reading;
}

QString SettingsFile::LockPath() const
{
    return m_path + QStringLiteral(".lock");
}

} // namespace standalone
