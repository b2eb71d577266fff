#include "Documentation/Completions.h"

#include "CommandLine/CommandGroups.h"
#include "Documentation/CompletionWords.h"

#include <set>

namespace nuq {
namespace {

std::string BashChoices(const std::vector<OptionSpec>& options)
{
    std::string cases;
    for (const OptionSpec& spec : options) {
        if (!spec.choices.empty())
            cases += std::string("    ") + spec.name + ") COMPREPLY=($(compgen -W '" + ChoiceWords(spec) +
                     "' -- \"$word\")); return ;;\n";
    }
    return cases;
}

/// Options whose value is a file or folder.
std::string BashPaths(const Commands& commands)
{
    std::set<std::string> names;
    for (const auto& command : commands) {
        for (const OptionSpec& spec : command->Spec().options) {
            if (!IsPath(spec.valueName))
                continue;
            names.insert(spec.name);
            if (*spec.shortName != '\0')
                names.insert(spec.shortName);
        }
    }
    std::string pattern;
    for (const std::string& name : names)
        pattern += (pattern.empty() ? "" : "|") + name;
    return pattern.empty() ? pattern : "    " + pattern + ") COMPREPLY=($(compgen -f -- \"$word\")); return ;;\n";
}

/// Cases over "$command$other", where a group's word has been put in front with a blank.
std::string BashCommands(const Commands& commands)
{
    std::string cases;
    std::set<std::string> groups;
    for (const auto& command : commands) {
        const std::string group = GroupNameOf(*command);
        if (!group.empty() && groups.insert(group).second)
            cases += "        " + group + ") command='" + group + " ' words='" + Joined(WordsOfGroup(commands, group)) +
                     "' ;;\n";
        const std::string name = command->Spec().name;
        cases += "        '" + name + "') command='" + name +
                 "' words=" + (TakesPath(command->Spec()) ? " paths=yes" : "") + "; options='" +
                 OptionWords(command->Spec().options) + "'; break ;;\n";
    }
    return cases;
}

} // namespace

std::string BashCompletion(const Commands& commands)
{
    std::string script = "# bash completion for nuq; written by nuq-pages from the command tables\n"
                         "_nuq()\n{\n"
                         "    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
                         "    local command= other options paths words='" +
                         Joined(FirstWords(commands)) +
                         "'\n"
                         "    case $previous in\n" +
                         BashChoices(GlobalOptionSpecs());
    for (const auto& command : commands)
        script += BashChoices(command->Spec().options);
    script += BashPaths(commands) +
              "    --app-dir) COMPREPLY=($(compgen -d -- \"$word\")); return ;;\n"
              "    esac\n"
              "    for other in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
              "        case $command$other in\n" +
              BashCommands(commands) +
              "        esac\n    done\n"
              "    options=\"$options " +
              OptionWords(GlobalOptionSpecs()) +
              "\"\n"
              "    if [[ $word == -* ]]; then\n"
              "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
              "    elif [[ -n $words ]]; then\n"
              "        COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
              "    elif [[ -n $paths ]]; then\n"
              "        COMPREPLY=($(compgen -f -- \"$word\"))\n    fi\n}\ncomplete -F _nuq nuq\n";
    return script;
}

} // namespace nuq
