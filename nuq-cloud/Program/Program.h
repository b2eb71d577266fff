#pragma once

namespace nuqcloud {

/// The whole program: reads the command line, serves until it is told to end.
/// @return the exit status: 0 done, 1 cannot serve, 2 wrong command line
int RunProgram(int argc, const char* const* argv);

} // namespace nuqcloud
