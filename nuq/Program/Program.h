#pragma once

namespace nuq {

/** The whole program; main() does nothing else. @return the exit code of the process */
int RunProgram(int argc, char* argv[]);

} // namespace nuq
