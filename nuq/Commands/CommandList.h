#pragma once

#include "CommandLine/CommandLineParser.h"

namespace nuq {

/** One of each command, in the order of the help. */
Commands MakeCommands();

} // namespace nuq
