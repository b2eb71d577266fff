#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>
#include <vector>

namespace nuq {

// What the completions of all shells need of the command tables.

/** The names of options with blanks between them. */
std::string OptionWords(const std::vector<OptionSpec>& options);

/** The words that may stand first: commands, and one for each group. */
std::vector<std::string> FirstWords(const Commands& commands);

/** The words with blanks between them. */
std::string Joined(const std::vector<std::string>& words);

/** Whether an argument or a value of this name in the tables is a file or folder. */
bool IsPath(const char* name);

/** Whether one of the command's arguments is a file or folder. */
bool TakesPath(const CommandSpec& spec);

/** The values that an option allows, with blanks between them. */
std::string ChoiceWords(const OptionSpec& spec);

/** The text between single quotes, as bash and zsh read it. */
std::string ShellQuoted(const std::string& text);

} // namespace nuq
