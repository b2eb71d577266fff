#include "Application/EnvironmentFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace standalone {

namespace {

constexpr qint64 kLargestFile = qint64{4} << 20;

struct Content
{
    QByteArray bytes;
    QString fault;
};

Content ContentOf(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {{}, QStringLiteral("does not exist")};
    }
    if (!info.isFile() || info.size() > kLargestFile) {
        return {{}, QStringLiteral("is no small regular file")};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, QStringLiteral("cannot be read: ") + file.errorString()};
    }
    QByteArray bytes = file.readAll();
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    return {bytes, {}};
}

QString ParseFault(const QJsonParseError& error)
{
    return error.error == QJsonParseError::NoError
               ? QStringLiteral("is not a JSON object")
               : QStringLiteral("is not JSON: %1 at byte %2").arg(error.errorString(), QString::number(error.offset));
}

} // namespace

EnvironmentFiles::EnvironmentFiles(const QString& applicationFolder)
{
    const QString folder = applicationFolder + QStringLiteral("/nuq_env_config");
    const QJsonObject index = ReadObject(folder + QStringLiteral("/nuq_env_config.json"));
    const QString map = index.value(QStringLiteral("env_map")).toString();
    if (!map.isEmpty()) {
        m_environmentMap = ReadObject(applicationFolder + map);
    }
    m_endPoints = ReadObject(folder + QStringLiteral("/wab_endpoints.json"));
}

QStringList EnvironmentFiles::KnownEnvironments() const
{
    return m_environmentMap.keys();
}

QString EnvironmentFiles::EndPoint(const QString& environment, const QString& name) const
{
    return m_endPoints.value(environment).toObject().value(name).toString();
}

QStringList EnvironmentFiles::Faults() const
{
    return m_faults;
}

QJsonObject EnvironmentFiles::ReadObject(const QString& path)
{
    const Content content = ContentOf(path);
    if (!content.fault.isEmpty()) {
        m_faults += path + QLatin1Char(' ') + content.fault;
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content.bytes, &error);
    if (!document.isObject()) {
        m_faults += path + QLatin1Char(' ') + ParseFault(error);
    }
    return document.object();
}

} // namespace standalone
