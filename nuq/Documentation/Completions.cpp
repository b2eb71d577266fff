#include "Documentation/Completions.h"

namespace nuq {
namespace {

std::string OptionWords(const std::vector<OptionSpec>& options)
{
    std::string words;
    for (const OptionSpec& spec : options)
        words += (words.empty() ? "" : " ") + std::string(spec.name);
    return words;
}

std::string CommandWords(const Commands& commands)
{
    std::string words;
    for (const auto& command : commands)
        words += (words.empty() ? "" : " ") + std::string(command->Spec().name);
    return words;
}

std::string ChoiceWords(const OptionSpec& spec)
{
    std::string words;
    for (const char* choice : spec.choices)
        words += (words.empty() ? "" : " ") + std::string(choice);
    return words;
}

/// Single quotes end a quoted text in every shell here; the tables may hold them.
std::string ShellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? "'\\''" : std::string(1, character);
    return quoted + "'";
}

/// fish knows only \' inside single quotes.
std::string FishQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? "\\'" : std::string(1, character);
    return quoted + "'";
}

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

std::string BashChoices()
{
    std::string cases;
    for (const OptionSpec& spec : GlobalOptionSpecs()) {
        if (!spec.choices.empty())
            cases += std::string("    ") + spec.name + ") COMPREPLY=($(compgen -W '" + ChoiceWords(spec) +
                     "' -- \"$word\")); return ;;\n";
    }
    return cases;
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
    }
    return "    " + ShellQuoted(text) + "\n";
}

std::string FishOption(const OptionSpec& spec, const std::string& condition)
{
    std::string line = "complete -c nuq" + condition + " -l " + std::string(spec.name).substr(2);
    if (*spec.shortName != '\0')
        line += " -s " + std::string(spec.shortName).substr(1);
    if (*spec.valueName != '\0')
        line += " -r";
    if (!spec.choices.empty())
        line += " -f -a " + FishQuoted(ChoiceWords(spec));
    return line + " -d " + FishQuoted(spec.help) + "\n";
}

} // namespace

std::string BashCompletion(const Commands& commands)
{
    std::string script = "# bash completion for nuq; written by nuq-pages from the command tables\n"
                         "_nuq()\n{\n"
                         "    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
                         "    local command= other options\n"
                         "    case $previous in\n" +
                         BashChoices() +
                         "    --app-dir) COMPREPLY=($(compgen -d -- \"$word\")); return ;;\n"
                         "    esac\n"
                         "    for other in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
                         "        case $other in\n";
    for (const auto& command : commands) {
        const std::string name = command->Spec().name;
        script.append("        ").append(name).append(") command=").append(name);
        script.append("; options='").append(OptionWords(command->Spec().options)).append("'; break ;;\n");
    }
    script += "        esac\n    done\n"
              "    options=\"$options " +
              OptionWords(GlobalOptionSpecs()) +
              "\"\n"
              "    if [[ $word == -* ]]; then\n"
              "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
              "    elif [[ -z $command ]]; then\n"
              "        COMPREPLY=($(compgen -W '" +
              CommandWords(commands) + "' -- \"$word\"))\n    fi\n}\ncomplete -F _nuq nuq\n";
    return script;
}

std::string ZshCompletion(const Commands& commands)
{
    std::string script = "#compdef nuq\n# written by nuq-pages from the command tables\n"
                         "local -a common\ncommon=(\n";
    for (const OptionSpec& spec : GlobalOptionSpecs())
        script += ZshOption(spec);
    script += ")\nlocal -a commands\ncommands=(\n";
    for (const auto& command : commands)
        script +=
            "    " + ShellQuoted(std::string(command->Spec().name) + ":" + ZshText(command->Spec().summary)) + "\n";
    script += ")\n_arguments -C $common '1:command:->command' '*::argument:->argument'\n"
              "case $state in\n"
              "command) _describe command commands ;;\n"
              "argument)\n    case $words[1] in\n";
    for (const auto& command : commands) {
        script += std::string("    ") + command->Spec().name + ") _arguments $common \\\n";
        for (const OptionSpec& spec : command->Spec().options) {
            std::string line = ZshOption(spec);
            line.pop_back();
            script += "    " + line + " \\\n";
        }
        script += "        '*:argument:' ;;\n";
    }
    return script + "    esac ;;\nesac\n";
}

std::string FishCompletion(const Commands& commands)
{
    std::string script = "# fish completion for nuq; written by nuq-pages from the command tables\n"
                         "complete -c nuq -f\n";
    for (const OptionSpec& spec : GlobalOptionSpecs())
        script += FishOption(spec, "");
    for (const auto& command : commands) {
        const CommandSpec& spec = command->Spec();
        script += std::string("complete -c nuq -n __fish_use_subcommand -a ") + spec.name + " -d " +
                  FishQuoted(spec.summary) + "\n";
        for (const OptionSpec& option : spec.options)
            script += FishOption(option, std::string(" -n '__fish_seen_subcommand_from ") + spec.name + "'");
    }
    return script;
}

} // namespace nuq
