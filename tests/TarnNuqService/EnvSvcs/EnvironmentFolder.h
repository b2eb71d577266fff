#pragma once

#include "support/LogRecord.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <string>
#include <vector>

namespace testsupport {

/// The contents of the four environment files, by default good ones for the environments "qa" and "prod".
struct EnvironmentFiles
{
    QByteArray main = R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json",)"
                      R"("env_map":"/nuq_env_config/env_map.json"})";
    QByteArray wab = R"(<envs><env name="qa" stage="Test"/></envs>)";
    QByteArray map = R"({"qa":"test","prod":"production"})";
    QByteArray pyx = R"({"test":{"api":"http://qa.example/Api","static":"http://qa.example/Static"},)"
                     R"("production":{"api":"http://example/Api","static":"http://example/Static"}})";
};

/// An application folder with environment files, below a temporary folder; its name holds a blank and Chinese letters.
class EnvironmentFolder
{
public:
    /// The files by their places below the application folder.
    static constexpr const char* MainFile = "/nuq_env_config/nuq_env_config.json";
    static constexpr const char* WabFile = "/nuq_env_config/wab_env.xml";
    static constexpr const char* MapFile = "/nuq_env_config/env_map.json";
    static constexpr const char* PyxFile = "/nuq_env_config/pyx_env.json";

    /// Makes the folders without any file.
    EnvironmentFolder();

    /// What the host names as its application folder: no separator at the end.
    std::wstring AppDir() const { return m_appDir.toStdWString(); }

    /// The place of something whose relative path is appended to the application folder as it is.
    QString Path(const QString& relative) const { return m_appDir + relative; }

    void Write(const QString& relative, const QByteArray& content) const;
    void WriteAll(const EnvironmentFiles& files = {}) const;

    /// Writes files in which both environments lead to this API and static endpoint.
    void WriteEndPoints(const QString& api, const QString& staticResources) const;

    /// The record about a file's path, by the caption of the file ("env map").
    LogRecord PathRecord(const QString& caption, const QString& relative) const;
    /// The record about a file's content.
    static LogRecord ContentRecord(const QString& caption, const QByteArray& content);
    /// All records of a complete reading of these files, in order.
    std::vector<LogRecord> RecordsOf(const EnvironmentFiles& files) const;

private:
    QTemporaryDir m_root;
    QString m_appDir;
};

} // namespace testsupport
