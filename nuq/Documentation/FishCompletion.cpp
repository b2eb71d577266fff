#include "Documentation/Completions.h"

#include "CommandLine/CommandGroups.h"
#include "Documentation/CompletionWords.h"

#include <set>

namespace nuq {
namespace {

/// fish knows only \' inside single quotes.
std::string FishQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? "\\'" : std::string(1, character);
    return quoted + "'";
}

std::string FishOption(const OptionSpec& spec, const std::string& condition)
{
    std::string line = "complete -c nuq" + condition + " -l " + std::string(spec.name).substr(2);
    if (*spec.shortName != '\0')
        line += " -s " + std::string(spec.shortName).substr(1);
    if (*spec.valueName != '\0')
        line += IsPath(spec.valueName) ? " -r -F" : " -r";
    if (!spec.choices.empty())
        line += " -f -a " + FishQuoted(ChoiceWords(spec));
    return line + " -d " + FishQuoted(spec.help) + "\n";
}

/// When the words in front of the cursor are those of a command.
std::string FishCondition(const Command& command)
{
    const std::string group = GroupNameOf(command);
    const std::string seen = "__fish_seen_subcommand_from ";
    return group.empty() ? seen + WordOf(command) : seen + group + "; and " + seen + WordOf(command);
}

std::string FishWord(const std::string& condition, const std::string& word, const char* summary)
{
    return "complete -c nuq -n '" + condition + "' -a " + word + " -d " + FishQuoted(summary) + "\n";
}

/// What makes a command's first word known, and its second one.
std::string FishWords(const Commands& commands, const Command& command, std::set<std::string>& groups)
{
    const std::string group = GroupNameOf(command);
    if (group.empty())
        return FishWord("__fish_use_subcommand", WordOf(command), command.Spec().summary);
    std::string lines;
    if (groups.insert(group).second)
        lines = FishWord("__fish_use_subcommand", group, FindGroup(group)->summary);
    const std::string seen = "__fish_seen_subcommand_from ";
    return lines + FishWord(seen + group + "; and not " + seen + Joined(WordsOfGroup(commands, group)), WordOf(command),
                       command.Spec().summary);
}

} // namespace

std::string FishCompletion(const Commands& commands)
{
    std::string script = "# fish completion for nuq; written by nuq-pages from the command tables\n"
                         "complete -c nuq -f\n";
    for (const OptionSpec& spec : GlobalOptionSpecs())
        script += FishOption(spec, "");
    std::set<std::string> groups;
    for (const auto& command : commands) {
        const CommandSpec& spec = command->Spec();
        script += FishWords(commands, *command, groups);
        const std::string condition = " -n '" + FishCondition(*command) + "'";
        if (TakesPath(spec))
            script += "complete -c nuq" + condition + " -F\n";
        for (const OptionSpec& option : spec.options)
            script += FishOption(option, condition);
    }
    return script;
}

} // namespace nuq
