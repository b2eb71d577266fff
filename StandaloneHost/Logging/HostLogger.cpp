#include "Logging/HostLogger.h"

#include "Logging/LogMask.h"
#include "Logging/MaskingSink.h"
#include "Paths/PrivateFolder.h"
#include "tarnnuq/NuqLogObject.h"

#include <QFile>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <spdlog/logger.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>

namespace standalone {

namespace {

spdlog::level::level_enum SpdlogLevel(LogLevel level)
{
    switch (level) {
    case LogLevel::Trace:
        return spdlog::level::trace;
    case LogLevel::Debug:
        return spdlog::level::debug;
    case LogLevel::Info:
        return spdlog::level::info;
    case LogLevel::Warning:
        return spdlog::level::warn;
    case LogLevel::Error:
        return spdlog::level::err;
    case LogLevel::Off:
        break;
    }
    return spdlog::level::off;
}

std::unique_ptr<spdlog::formatter> FileFormat()
{
    return std::make_unique<spdlog::pattern_formatter>(
        "%Y-%m-%dT%H:%M:%S.%eZ [%l] [%P:%t] %v", spdlog::pattern_time_type::utc);
}

spdlog::sink_ptr ConsoleSink(LogLevel level)
{
    auto spSink = std::make_shared<spdlog::sinks::stderr_sink_mt>();
    spSink->set_level(SpdlogLevel(level));
    spSink->set_pattern("%n: %l: %v");
    return spSink;
}

/// Without a buffer each line is one append to the file, which other processes cannot tear apart.
spdlog::file_event_handlers Unbuffered()
{
    spdlog::file_event_handlers handlers;
    handlers.after_open = [](const spdlog::filename_t&, std::FILE* file) { std::setvbuf(file, nullptr, _IONBF, 0); };
    return handlers;
}

spdlog::sink_ptr FileSink(const LogOptions& options, const QString& path)
{
    auto spSink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
        QFile::encodeName(path).toStdString(), options.fileSize, options.rotatedFiles, false, Unbuffered());
    spSink->set_level(SpdlogLevel(options.fileLevel));
    spSink->set_formatter(FileFormat());
    return spSink;
}

/// A log that fails with every record must not fill the screen with its own complaint.
spdlog::err_handler ComplainOnce(const QString& name)
{
    auto spComplained = std::make_shared<std::atomic_flag>();
    return [spComplained, prefix = name.toStdString()](const std::string& reason) {
        if (!spComplained->test_and_set()) {
            std::fprintf(stderr, "%s: warning: the log cannot be written: %s\n", prefix.c_str(), reason.c_str());
        }
    };
}

void Write(spdlog::logger& logger, spdlog::level::level_enum level, const tarnnuq::NuqLogObject& record)
{
    if (!logger.should_log(level)) {
        return;
    }
    try {
        // The overload for finished texts: braces in the text are no place markers.
        logger.log(level, spdlog::string_view_t(record.Text().toUtf8().toStdString()));
    } catch (...) {
        // Out of memory for the text: a log must not end the program.
    }
}

} // namespace

HostLogger::HostLogger(const LogOptions& options) : m_spMask(std::make_shared<LogMask>())
{
    std::vector<spdlog::sink_ptr> sinks{ConsoleSink(options.consoleLevel)};
    if (options.fileLevel != LogLevel::Off) {
        const QString path = options.folder + QLatin1Char('/') + options.name + QStringLiteral(".log");
        try {
            MakePrivateFolder(options.folder);
            sinks.push_back(FileSink(options, path));
            m_filePath = path;
        } catch (const std::exception& fault) {
            m_fileFault = QString::fromLocal8Bit(fault.what());
        }
    }
    auto spSink = std::make_shared<MaskingSink>(m_spMask, options.recordSize, std::move(sinks));
    m_spLogger = std::make_shared<spdlog::logger>(options.name.toStdString(), std::move(spSink));
    m_spLogger->set_level(SpdlogLevel(std::min(options.consoleLevel, options.fileLevel)));
    m_spLogger->set_error_handler(ComplainOnce(options.name));
    m_spLogger->flush_on(spdlog::level::err);
    if (!m_fileFault.isEmpty()) {
        Warn(tarnnuq::NuqLogObject(QStringLiteral("no log file, logging here only: ") + m_fileFault));
    }
}

HostLogger::~HostLogger()
{
    Flush();
}

void HostLogger::Info(const tarnnuq::NuqLogObject& record)
{
    Write(*m_spLogger, spdlog::level::info, record);
}

void HostLogger::Error(const tarnnuq::NuqLogObject& record)
{
    Write(*m_spLogger, spdlog::level::err, record);
}

void HostLogger::Warn(const tarnnuq::NuqLogObject& record)
{
    Write(*m_spLogger, spdlog::level::warn, record);
}

void HostLogger::Debug(const tarnnuq::NuqLogObject& record)
{
    Write(*m_spLogger, spdlog::level::debug, record);
}

void HostLogger::Flush()
{
    m_spLogger->flush();
}

std::shared_ptr<LogMask> HostLogger::Mask() const
{
    return m_spMask;
}

QString HostLogger::FilePath() const
{
    return m_filePath;
}

QString HostLogger::FileFault() const
{
    return m_fileFault;
}

} // namespace standalone
