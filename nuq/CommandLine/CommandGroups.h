#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>
#include <vector>

namespace nuq {

/**
 * Commands that belong together are called by two words, the first of which is theirs alone: "family show". The table
 * has one row for each such first word; its texts are English sources for the translation context "CommandTable".
 */
struct CommandGroup
{
    const char* name;        ///< "family"
    const char* summary;     ///< one line for the list of commands
    const char* description; ///< more, may be ""
};

/** All groups; null when there is none of that name. */
const CommandGroup* FindGroup(const std::string& name);

/** The first of two words, "" when the command has one. */
std::string GroupNameOf(const Command& command);

/** The last word of a command's name. */
std::string WordOf(const Command& command);

/** The words of a group's commands in the order of the list. */
std::vector<std::string> WordsOfGroup(const Commands& commands, const std::string& group);

} // namespace nuq
