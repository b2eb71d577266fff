#pragma once

#include <QString>
#include <optional>

namespace standalone {

/// How much a log sink takes: its level and everything graver. Off takes nothing.
enum class LogLevel
{
    Trace,
    Debug,
    Info,
    Warning,
    Error,
    Off
};

/// The level with that name: "trace", "debug", "info", "warning" (or "warn"), "error", "off". Letter case and
/// blanks around it do not matter.
/// @return nothing for any other text
std::optional<LogLevel> LogLevelFromText(const QString& text);

/// The name of a level, as LogLevelFromText reads it.
QString LogLevelText(LogLevel level);

} // namespace standalone
