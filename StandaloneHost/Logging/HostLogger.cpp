#include "Logging/HostLogger.h"

#include "Logging/LogMask.h"
#include "Logging/MaskingSink.h"
#include "Paths/PrivateFolder.h"
#include "tarnnuq/NuqLogObject.h"

#include <QFile>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <numeric>
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
    auto spComplained = std::make_shared<std::atomic<bool>>(false);
    return [spComplained, prefix = name.toStdString()](const std::string& reason) {
        if (!spComplained->exchange(true)) {
            std::fprintf(stderr, "%s: warning: the log cannot be written: %s\n", prefix.c_str(), reason.c_str());
        }
    };
}

/// The parts joined, but no more than so many characters of them: reply bodies are large, and most of one would
/// be copied and converted only to be cut off by the sink.
QString Beginning(const QStringList& parts, int limit)
{
    QString text;
    for (const QString& part : parts) {
        text += part.leftRef(limit - text.size());
    }
    return text;
}

int Length(const QStringList& parts)
{
    return std::accumulate(
        parts.begin(), parts.end(), 0, [](int length, const QString& part) { return length + part.size(); });
}

/// The record in UTF-8: whole when it fits, else with its length in front and more than fits of its beginning.
QByteArray Payload(const QStringList& parts, int limit)
{
    const int length = Length(parts);
    QByteArray text = Beginning(parts, limit).toUtf8();
    if (length > limit || text.size() > limit) {
        text.prepend(QStringLiteral("(%1 characters) ").arg(length).toUtf8());
    }
    return text;
}

} // namespace

HostLogger::HostLogger(const LogOptions& options)
    : m_spMask(std::make_shared<LogMask>()), m_recordSize(static_cast<int>(options.recordSize))
{
    // The console first: a file that cannot be written throws.
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
    Write(LogLevel::Info, record);
}

void HostLogger::Error(const tarnnuq::NuqLogObject& record)
{
    Write(LogLevel::Error, record);
}

void HostLogger::Warn(const tarnnuq::NuqLogObject& record)
{
    Write(LogLevel::Warning, record);
}

void HostLogger::Debug(const tarnnuq::NuqLogObject& record)
{
    Write(LogLevel::Debug, record);
}

void HostLogger::Write(LogLevel level, const tarnnuq::NuqLogObject& record)
{
    if (!m_spLogger->should_log(SpdlogLevel(level))) {
        return;
    }
    try {
        const QByteArray payload = Payload(record.Parts(), m_recordSize);
        // The overload for finished texts: braces in the text are no place markers.
        m_spLogger->log(
            SpdlogLevel(level), spdlog::string_view_t(payload.constData(), static_cast<std::size_t>(payload.size())));
    } catch (...) {
        // Out of memory for the text: a log must not end the program.
    }
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
