#pragma once

#include "Logging/LogOptions.h"
#include "tarnnuq/INuqLogger.h"

#include <QString>
#include <memory>

namespace spdlog {
class logger;
}

namespace standalone {

class LogMask;

/// The stand-alone host's log: a rotating file in the state folder and standard error, each with its own level.
///
/// A file line is "2026-11-21T11:18:10.123Z [info] [<process>:<thread>] <text>", in UTC; a console line is
/// "<name>: <level>: <text>". The parts of a record are joined; secrets are masked (see LogMask), and line
/// breaks and control characters become escapes, so that a record is always one line. Each record reaches the
/// file at once and in one piece: a crash loses nothing, and several processes may write to the same file. When one of
/// them rotates the file, the others go on in the renamed one until they rotate themselves.
///
/// When the file cannot be opened the log goes to the console alone and one warning there says why; when it can
/// no longer be written (a full disk) one warning says so and the program goes on.
///
/// All operations may be called from several threads at once. None throws.
class HostLogger final : public tarnnuq::INuqLogger
{
public:
    explicit HostLogger(const LogOptions& options);
    ~HostLogger() override;
    HostLogger(const HostLogger&) = delete;
    HostLogger& operator=(const HostLogger&) = delete;

    void Info(const tarnnuq::NuqLogObject& record) override;
    void Error(const tarnnuq::NuqLogObject& record) override;
    void Warn(const tarnnuq::NuqLogObject& record) override;
    void Debug(const tarnnuq::NuqLogObject& record) override;

    /// Hands on everything written so far to the system.
    void Flush();

    /// Where secrets are made known; valid as long as somebody holds it.
    std::shared_ptr<LogMask> Mask() const;

    /// The log file's absolute path; empty when none is open.
    QString FilePath() const;

    /// Why there is no log file although one was wanted; empty when all is well.
    QString FileFault() const;

private:
    void Write(LogLevel level, const tarnnuq::NuqLogObject& record);

    std::shared_ptr<LogMask> m_spMask;
    int m_recordSize;
    QString m_filePath;
    QString m_fileFault;
    std::shared_ptr<spdlog::logger> m_spLogger;
};

} // namespace standalone
