#pragma once

#include "CommandLine/Command.h"
#include "CommandLine/GlobalOptions.h"

#include <memory>
#include <string>
#include <vector>

namespace nuq {

using Commands = std::vector<std::unique_ptr<Command>>;

/** What a command line asks for. */
struct ParsedCommandLine
{
    GlobalOptions global;
    Command* command = nullptr; ///< null when none was given; owned by the list that was passed in
    std::string group;          ///< the group that was named without a command of it; only together with --help
};

/**
 * Reads a command line into the options of the commands.
 *
 * @param arguments without the program's name, UTF-8
 * @throws UsageError with one sentence, when it can with the option or command that was most likely meant
 */
ParsedCommandLine ParseCommandLine(const Commands& commands, const std::vector<std::string>& arguments);

/**
 * The global switches that matter even when the command line is wrong (--json, --lang, --color, --quiet), found
 * without checking anything, so that the complaint itself has the right language and form.
 */
GlobalOptions PeekGlobalOptions(const std::vector<std::string>& arguments);

} // namespace nuq
