#pragma once

#include <atomic>

namespace samplelibrary {

/// Turns SIGINT and SIGTERM into a flag that a long piece of work looks at, so that it can clean up. One at a time.
class StopRequest
{
public:
    /// Catches the signals; also makes a write beyond a file-size limit an error instead of the end of the program.
    StopRequest();

    /// Gives the signals back.
    ~StopRequest();

    StopRequest(const StopRequest&) = delete;
    StopRequest& operator=(const StopRequest&) = delete;

    /// True once a signal has come.
    const std::atomic<bool>& Flag() const;

    /// Exit code that tells of the signal: 128 plus its number.
    int ExitCode() const;
};

} // namespace samplelibrary
