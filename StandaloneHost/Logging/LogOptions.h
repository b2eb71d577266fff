#pragma once

#include "Logging/LogLevel.h"

#include <QString>
#include <cstddef>

namespace standalone {

/// What a HostLogger is made from.
struct LogOptions
{
    /// The program's name: begins the console lines and names the file "<name>.log".
    QString name = QStringLiteral("tarnnuq");
    /// The folder of the log file, absolute; made when it is missing.
    QString folder;
    /// What the file takes; with Off no file is opened.
    LogLevel fileLevel = LogLevel::Info;
    /// What standard error takes.
    LogLevel consoleLevel = LogLevel::Warning;
    /// A file that would grow beyond this many bytes is rotated first.
    std::size_t fileSize = std::size_t{5} << 20;
    /// How many rotated files ("<name>.1.log", …) are kept beside the current one.
    std::size_t rotatedFiles = 5;
    /// A record longer than this many bytes of UTF-8 is cut there and has its whole length in front, so that
    /// logged reply bodies cannot push everything else out of the files. Below 2 GB.
    std::size_t recordSize = std::size_t{16} << 10;
};

} // namespace standalone
