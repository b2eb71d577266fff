#include "Documentation/Completions.h"

#include "CommandLine/CommandGroups.h"
#include "Documentation/CompletionWords.h"

#include <set>

namespace nuq {
namespace {

std::string ZshText(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == ':' || character == '[' || character == ']')
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

std::string ZshOption(const OptionSpec& spec)
{
    std::string text = std::string(spec.name) + "[" + ZshText(spec.help) + "]";
    if (*spec.valueName != '\0') {
        text += std::string(":") + spec.valueName + ":";
        if (!spec.choices.empty())
            text += "(" + ChoiceWords(spec) + ")";
        else if (std::string(spec.valueName) == "FOLDER")
            text += "_directories";
        else if (IsPath(spec.valueName))
            text += "_files";
    }
    return "    " + ShellQuoted(text) + "\n";
}

std::string ZshCommandList(const Commands& commands, const std::string& group)
{
    std::string list;
    std::set<std::string> groups;
    for (const auto& command : commands) {
        const std::string own = GroupNameOf(*command);
        if (own == group)
            list += "    " + ShellQuoted(WordOf(*command) + ":" + ZshText(command->Spec().summary)) + "\n";
        else if (group.empty() && groups.insert(own).second)
            list += "    " + ShellQuoted(own + ":" + ZshText(FindGroup(own)->summary)) + "\n";
    }
    return list;
}

std::string ZshArguments(const Command& command)
{
    std::string script = std::string("    ") + WordOf(command) + ") _arguments $common \\\n";
    for (const OptionSpec& spec : command.Spec().options) {
        std::string line = ZshOption(spec);
        line.pop_back();
        script += "    " + line + " \\\n";
    }
    return script + (TakesPath(command.Spec()) ? "        '*:argument:_files' ;;\n" : "        '*:argument:' ;;\n");
}

std::string ZshGroup(const Commands& commands, const std::string& group)
{
    std::string script = "    " + group + ")\n    if (( CURRENT == 2 )); then\n    commands=(\n" +
                         ZshCommandList(commands, group) +
                         "    )\n    _describe command commands\n    else\n    shift words\n    (( CURRENT-- ))\n"
                         "    case $words[1] in\n";
    for (const auto& command : commands) {
        if (GroupNameOf(*command) == group)
            script += ZshArguments(*command);
    }
    return script + "    esac\n    fi ;;\n";
}

} // namespace

std::string ZshCompletion(const Commands& commands)
{
    std::string script = "#compdef nuq\n# written by nuq-pages from the command tables\n"
                         "local -a common\ncommon=(\n";
    for (const OptionSpec& spec : GlobalOptionSpecs())
        script += ZshOption(spec);
    script += ")\nlocal -a commands\ncommands=(\n" + ZshCommandList(commands, "") +
              ")\n_arguments -C $common '1:command:->command' '*::argument:->argument'\n"
              "case $state in\n"
              "command) _describe command commands ;;\n"
              "argument)\n    case $words[1] in\n";
    std::set<std::string> groups;
    for (const auto& command : commands) {
        const std::string group = GroupNameOf(*command);
        if (group.empty())
            script += ZshArguments(*command);
        else if (groups.insert(group).second)
            script += ZshGroup(commands, group);
    }
    return script + "    esac ;;\nesac\n";
}

} // namespace nuq
