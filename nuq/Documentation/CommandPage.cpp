#include "Documentation/CommandPage.h"

#include "CommandLine/HelpText.h"
#include "Documentation/Facts.h"
#include "Errors/ErrorTexts.h"
#include "Program/ErrorDocument.h"

namespace nuq {
namespace {

std::string InTable(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '|')
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

std::string OptionLabel(const OptionSpec& spec)
{
    std::string label = *spec.shortName == '\0' ? std::string() : std::string("`") + spec.shortName + "`, ";
    label += std::string("`") + spec.name;
    if (*spec.valueName != '\0')
        label += std::string(" ") + spec.valueName;
    return label + "`";
}

std::string ChoiceText(const OptionSpec& spec)
{
    std::string text;
    for (const char* choice : spec.choices)
        text += (text.empty() ? " (`" : ", `") + std::string(choice) + "`";
    return text.empty() ? text : text + ")";
}

std::string OptionTable(const std::vector<OptionSpec>& options)
{
    if (options.empty())
        return std::string();
    std::string table = "\n| option | meaning |\n|---|---|\n";
    for (const OptionSpec& spec : options)
        table += "| " + InTable(OptionLabel(spec)) + " | " + InTable(spec.help) + ChoiceText(spec) + " |\n";
    return table;
}

std::string FactTable(const char* heading, const std::vector<Fact>& facts)
{
    std::string table = std::string("\n| ") + heading + " | meaning |\n|---|---|\n";
    for (const Fact& fact : facts)
        table += std::string("| `") + fact.name + "` | " + InTable(fact.text) + " |\n";
    return table;
}

std::string Section(const CommandSpec& spec)
{
    std::string section = std::string("\n### nuq ") + spec.name + "\n\n" + spec.summary + ".\n";
    if (*spec.description != '\0')
        section += std::string("\n") + spec.description + "\n";
    section += "\n```\n" + SynopsisOf(spec) + "\n```\n";
    if (!spec.arguments.empty()) {
        section += "\n| argument | meaning |\n|---|---|\n";
        for (const ArgumentSpec& argument : spec.arguments)
            section += std::string("| `") + argument.name + "` | " + argument.help + " |\n";
    }
    section += OptionTable(spec.options);
    section += "\n```sh\n";
    for (const ExampleSpec& example : spec.examples)
        section += std::string(example.line) + "   # " + example.help + "\n";
    return section + "```\n";
}

/// The causes that a failure document names in "code", with the exit code that goes with each.
std::string ErrorTable()
{
    std::string table = "\n| code | exit | meaning |\n|---|---|---|\n";
    for (const componentlibrary::ErrorCode code : componentlibrary::AllErrorCodes()) {
        componentlibrary::ErrorInfo error;
        error.code = code;
        const bool isCancelled = code == componentlibrary::ErrorCode::Cancelled;
        const int exit = isCancelled ? static_cast<int>(ExitCode::Interrupted) : static_cast<int>(ExitCodeOf(error));
        table += "| `" + ErrorId(code).toStdString() + "` | " + std::to_string(exit) + " | " +
                 InTable(ErrorCause(error).toStdString()) + " |\n";
    }
    table +=
        "| `service.no_categories` | 1 | The public category service gave no categories, and it does not say why. |\n";
    return table + "| `usage` | 2 | The command line is wrong. |\n";
}

} // namespace

std::string CommandPage(const Commands& commands)
{
    std::string page =
        "# nuq: the component library in the terminal\n\n"
        "<!-- Written by nuq-pages from the command tables; change those, not this page. -->\n\n"
        "Standard output carries the result and nothing else; errors, notes and progress go to standard\n"
        "error, progress only to a terminal. With `--json` the result is one JSON document, described\n"
        "in [json.md](json.md); a failure is a document, too. `nuq COMMAND --help` shows what follows here.\n";
    page += "\n## Commands\n";
    for (const auto& command : commands)
        page += Section(command->Spec());
    page += "\n## Options of all commands\n" + OptionTable(GlobalOptionSpecs());
    page += "\n## Exit status\n" + FactTable("code", ExitStatusFacts());
    page += "\n## Error codes\n\nThe `code` of a failure with `--json`.\n" + ErrorTable();
    page += "\n## Environment\n" + FactTable("variable", EnvironmentFacts());
    page += "\n## Files\n" + FactTable("file", FileFacts());
    return page;
}

} // namespace nuq
