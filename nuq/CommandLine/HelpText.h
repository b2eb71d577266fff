#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>

namespace nuq {

/** The overview: examples first, then the commands and the global options. UTF-8. */
std::string OverviewHelp(const Commands& commands);

/** The help of commands that belong together: what they do and their list. UTF-8. */
std::string GroupHelp(const Commands& commands, const std::string& group);

/** The help of one command: examples first, then its arguments and options. UTF-8. */
std::string CommandHelp(const Command& command);

/** How the command is called, for example "nuq component ID [OPTION]...". */
std::string SynopsisOf(const CommandSpec& spec);

} // namespace nuq
