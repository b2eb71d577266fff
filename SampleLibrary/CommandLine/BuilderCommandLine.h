#pragma once

namespace samplelibrary {

/// The program sample-library-builder without its main function: reads the options, builds, reports.
///
/// @return exit code: 0 done, 1 failed, 2 wrong options, 130 interrupted, 143 ended by SIGTERM
int RunBuilder(int argc, const char* const* argv);

} // namespace samplelibrary
