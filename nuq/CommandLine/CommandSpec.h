#pragma once

#include <vector>

namespace nuq {

/**
 * How a command is called: the one table from which the parser, the help, the manual page, the completions and
 * docs/cli.md are made. All texts are English sources for the translation context "CommandTable".
 */
struct OptionSpec
{
    const char* name;                      ///< "--keyword"
    const char* shortName;                 ///< "-k", or ""
    const char* valueName;                 ///< "TEXT"; "" for a switch
    const char* help;                      ///< what it does, one sentence without a period at its end
    std::vector<const char*> choices = {}; ///< the values allowed, when only these are
    bool mayBeEmpty = false;               ///< whether "" is a value; elsewhere it is a variable that a script lost
};

struct ArgumentSpec
{
    const char* name; ///< "ID"
    const char* help;
    bool isRequired = true;
};

struct ExampleSpec
{
    const char* line; ///< "nuq categories --tree"
    const char* help;
};

struct CommandSpec
{
    const char* name;
    const char* summary;     ///< one line for the list of commands
    const char* description; ///< more, may be ""
    std::vector<ArgumentSpec> arguments;
    std::vector<OptionSpec> options;
    std::vector<ExampleSpec> examples;
};

} // namespace nuq
