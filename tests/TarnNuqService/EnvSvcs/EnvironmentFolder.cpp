#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace testsupport {

EnvironmentFolder::EnvironmentFolder() : m_appDir(m_root.filePath(QStringLiteral("应用 目录")))
{
    EXPECT_TRUE(QDir().mkpath(Path(QStringLiteral("/nuq_env_config"))));
}

void EnvironmentFolder::Write(const QString& relative, const QByteArray& content) const
{
    QFile file(Path(relative));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

void EnvironmentFolder::WriteAll(const EnvironmentFiles& files) const
{
    Write(QString::fromLatin1(MainFile), files.main);
    Write(QString::fromLatin1(WabFile), files.wab);
    Write(QString::fromLatin1(MapFile), files.map);
    Write(QString::fromLatin1(PyxFile), files.pyx);
}

void EnvironmentFolder::WriteEndPoints(const QString& api, const QString& staticResources) const
{
    const QJsonObject endPoints{{QStringLiteral("api"), api}, {QStringLiteral("static"), staticResources}};
    EnvironmentFiles files;
    files.pyx =
        QJsonDocument(QJsonObject{{QStringLiteral("test"), endPoints}, {QStringLiteral("production"), endPoints}})
            .toJson(QJsonDocument::Compact);
    WriteAll(files);
}

LogRecord EnvironmentFolder::PathRecord(const QString& caption, const QString& relative) const
{
    return {LogRecord::Operation::Info, {caption + QStringLiteral(" file path: "), Path(relative)}};
}

LogRecord EnvironmentFolder::ContentRecord(const QString& caption, const QByteArray& content)
{
    return {LogRecord::Operation::Info,
        {caption + QStringLiteral(":\r\n"), QString::fromUtf8(content.constData(), content.size())}};
}

std::vector<LogRecord> EnvironmentFolder::RecordsOf(const EnvironmentFiles& files) const
{
    const QString main = QStringLiteral("nuq env config");
    const QString wab = QStringLiteral("wab env config");
    const QString map = QStringLiteral("env map");
    const QString pyx = QStringLiteral("pyx env config");
    return {PathRecord(main, QString::fromLatin1(MainFile)), ContentRecord(main, files.main),
        PathRecord(wab, QString::fromLatin1(WabFile)), ContentRecord(wab, files.wab),
        PathRecord(map, QString::fromLatin1(MapFile)), ContentRecord(map, files.map),
        PathRecord(pyx, QString::fromLatin1(PyxFile)), ContentRecord(pyx, files.pyx)};
}

} // namespace testsupport
