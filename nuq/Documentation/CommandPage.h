#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>

namespace nuq {

/** docs/cli.md: commands, options, exit codes, environment and files, from the same tables as the parser. */
std::string CommandPage(const Commands& commands);

} // namespace nuq
