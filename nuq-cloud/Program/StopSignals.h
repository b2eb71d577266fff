#pragma once

#include <csignal>

namespace nuqcloud {

/// Waits for SIGTERM or SIGINT on the thread that made it.
///
/// REQUIRES: made before any other thread, so that all threads leave these signals to it. SIGPIPE is ignored from
/// then on: a closed output is no reason to end.
class StopSignals
{
public:
    StopSignals();

    /// Returns when one of the signals has come; at once when it came before.
    void Wait() const;

private:
    sigset_t m_signals{};
};

} // namespace nuqcloud
