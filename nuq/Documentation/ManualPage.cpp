#include "Documentation/ManualPage.h"

#include "CommandLine/HelpText.h"
#include "Documentation/Facts.h"

namespace nuq {
namespace {

/// Text as the macro language wants it: no control line by accident, no hyphen that is typeset as a dash.
std::string Escaped(const std::string& text)
{
    std::string escaped = text.rfind('.', 0) == 0 || text.rfind('\'', 0) == 0 ? "\\&" : "";
    for (const char character : text) {
        if (character == '\\')
            escaped += "\\e";
        else if (character == '-')
            escaped += "\\-";
        else
            escaped += character;
    }
    return escaped;
}

std::string Item(const std::string& label, const std::string& text)
{
    return ".TP\n.B " + Escaped(label) + "\n" + Escaped(text) + "\n";
}

std::string OptionItem(const OptionSpec& spec)
{
    std::string label = *spec.shortName == '\0' ? std::string() : std::string(spec.shortName) + ", ";
    label += spec.name;
    if (*spec.valueName != '\0')
        label += std::string(" ") + spec.valueName;
    std::string text = spec.help;
    for (std::size_t at = 0; at < spec.choices.size(); ++at)
        text += (at == 0 ? ": " : ", ") + std::string(spec.choices[at]);
    return Item(label, text + ".");
}

std::string Facts(const char* title, const std::vector<Fact>& facts)
{
    std::string text = std::string(".SH ") + title + "\n";
    for (const Fact& fact : facts)
        text += Item(fact.name, fact.text + std::string("."));
    return text;
}

std::string CommandText(const CommandSpec& spec)
{
    std::string text = ".SS " + Escaped(SynopsisOf(spec)) + "\n" + Escaped(spec.summary + std::string(".")) + "\n";
    if (*spec.description != '\0')
        text += Escaped(spec.description) + "\n";
    for (const ArgumentSpec& argument : spec.arguments)
        text += Item(argument.name, argument.help + std::string("."));
    for (const OptionSpec& option : spec.options)
        text += OptionItem(option);
    return text;
}

} // namespace

std::string ManualPage(const Commands& commands, const std::string& version)
{
    std::string page =
        ".TH NUQ 1 \"\" \"TarnNuq " + version +
        "\" \"User Commands\"\n"
        ".SH NAME\nnuq \\- the component library in the terminal\n"
        ".SH SYNOPSIS\n.B nuq\n.I COMMAND\n[\\fIARGUMENT\\fR]... [\\fIOPTION\\fR]...\n"
        ".SH DESCRIPTION\n"
        "Shows categories, components and their values from the component library's cloud service.\n"
        "Standard output carries the result and nothing else; with \\fB\\-\\-json\\fR it is one JSON document.\n"
        ".SH COMMANDS\n";
    for (const auto& command : commands)
        page += CommandText(command->Spec());
    page += ".SH OPTIONS\nThese may stand before or behind every command.\n";
    for (const OptionSpec& option : GlobalOptionSpecs())
        page += OptionItem(option);
    page += Facts("EXIT STATUS", ExitStatusFacts());
    page += Facts("ENVIRONMENT", EnvironmentFacts());
    page += Facts("FILES", FileFacts());
    page += ".SH EXAMPLES\n";
    for (const auto& command : commands) {
        for (const ExampleSpec& example : command->Spec().examples)
            page += Item(example.line, example.help);
    }
    return page;
}

} // namespace nuq
