#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>

namespace nuq {

/** nuq.1 in the man macro language, from the same tables as the parser. @param version of the product */
std::string ManualPage(const Commands& commands, const std::string& version);

} // namespace nuq
