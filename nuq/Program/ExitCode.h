#pragma once

namespace nuq {

/** How the program ends; documented in docs/cli.md and stable. */
enum class ExitCode
{
    Done = 0,
    Failed = 1,
    Usage = 2,
    NotFound = 3,
    Access = 4,
    Network = 5,
    Server = 6,
    Findings = 7,
    Interrupted = 130,
    Terminated = 143
};

} // namespace nuq
