#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>

namespace nuq {

// Completion scripts, from the same tables as the parser.

std::string BashCompletion(const Commands& commands);
std::string ZshCompletion(const Commands& commands);
std::string FishCompletion(const Commands& commands);

} // namespace nuq
