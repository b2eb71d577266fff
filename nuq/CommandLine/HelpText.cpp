#include "CommandLine/HelpText.h"

#include "CommandLine/CommandGroups.h"
#include "Output/TextWidth.h"

#include <QCoreApplication>

#include <algorithm>

namespace nuq {
namespace {

constexpr int kIndent = 2;
constexpr int kGap = 3;
constexpr int kLineWidth = 96;

struct Entry
{
    std::string left;
    std::string right;
};

std::string FromTable(const char* text)
{
    return *text == '\0' ? std::string() : QCoreApplication::translate("CommandTable", text).toStdString();
}

std::string Tr(const char* text)
{
    return QCoreApplication::translate("HelpText", text).toStdString();
}

std::string OptionLabel(const OptionSpec& spec)
{
    std::string label = *spec.shortName == '\0' ? "    " : std::string(spec.shortName) + ", ";
    label += spec.name;
    if (*spec.valueName != '\0')
        label += std::string(" ") + spec.valueName;
    return label;
}

std::string OptionText(const OptionSpec& spec)
{
    std::string text = FromTable(spec.help);
    if (spec.choices.empty())
        return text;
    text += " (";
    for (std::size_t at = 0; at < spec.choices.size(); ++at)
        text += (at == 0 ? "" : ", ") + std::string(spec.choices[at]);
    return text + ")";
}

/// Breaks a text at blanks; a text without blanks (Chinese) stays on its line.
std::string Wrapped(const std::string& text, int indent)
{
    std::string result;
    int column = indent;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        const int width = TextWidth(word);
        if (column > indent && column + 1 + width > kLineWidth) {
            result += '\n' + std::string(static_cast<std::size_t>(indent), ' ');
            column = indent;
        } else if (column > indent) {
            result += ' ';
            ++column;
        }
        result += word;
        column += width;
        at = end + 1;
    }
    return result;
}

std::string Block(const std::string& title, const std::vector<Entry>& entries)
{
    if (entries.empty())
        return std::string();
    int width = 0;
    for (const Entry& entry : entries)
        width = std::max(width, TextWidth(entry.left));
    std::string block = "\n" + title + "\n";
    for (const Entry& entry : entries) {
        const int filler = width - TextWidth(entry.left) + kGap;
        block += std::string(kIndent, ' ') + entry.left + std::string(static_cast<std::size_t>(filler), ' ');
        block += Wrapped(entry.right, kIndent + width + kGap) + '\n';
    }
    return block;
}

std::vector<Entry> OptionEntries(const std::vector<OptionSpec>& options)
{
    std::vector<Entry> entries;
    entries.reserve(options.size());
    for (const OptionSpec& spec : options)
        entries.push_back({OptionLabel(spec), OptionText(spec)});
    return entries;
}

std::vector<Entry> ExampleEntries(const std::vector<ExampleSpec>& examples)
{
    std::vector<Entry> entries;
    entries.reserve(examples.size());
    for (const ExampleSpec& example : examples)
        entries.push_back({example.line, FromTable(example.help)});
    return entries;
}

std::vector<Entry> OverviewExamples()
{
    static const std::vector<ExampleSpec> examples = {
        {"nuq tour", QT_TRANSLATE_NOOP("CommandTable", "look around")},
        {"nuq categories --tree", QT_TRANSLATE_NOOP("CommandTable", "the category tree with counts")},
        {"nuq components --category CODE", QT_TRANSLATE_NOOP("CommandTable", "the first components of a category")},
        {"nuq components --keyword pump --all --json",
            QT_TRANSLATE_NOOP("CommandTable", "every component that matches, for a script")},
        {"nuq doctor", QT_TRANSLATE_NOOP("CommandTable", "find out why something does not work")},
    };
    return ExampleEntries(examples);
}

/// One line a command, and one for all commands of a group.
std::vector<Entry> CommandEntries(const Commands& commands)
{
    std::vector<Entry> entries;
    std::string last;
    for (const auto& command : commands) {
        const std::string name = GroupNameOf(*command);
        const CommandGroup* const group = FindGroup(name);
        if (group == nullptr)
            entries.push_back({command->Spec().name, FromTable(command->Spec().summary)});
        else if (name != last)
            entries.push_back({name + " ...", FromTable(group->summary)});
        last = name;
    }
    return entries;
}

} // namespace

std::string SynopsisOf(const CommandSpec& spec)
{
    std::string synopsis = std::string("nuq ") + spec.name;
    for (const ArgumentSpec& argument : spec.arguments)
        synopsis += argument.isRequired ? std::string(" ") + argument.name : std::string(" [") + argument.name + "]";
    return synopsis + " [OPTION]...";
}

std::string OverviewHelp(const Commands& commands)
{
    std::string help = Tr(QT_TRANSLATE_NOOP("HelpText", "nuq - the component library in the terminal"));
    help += "\n" + Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Examples")), OverviewExamples());
    help += "\n" + Tr(QT_TRANSLATE_NOOP("HelpText", "Usage")) + "\n  nuq COMMAND [ARGUMENT]... [OPTION]...\n";
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Commands")), CommandEntries(commands));
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Options of all commands")), OptionEntries(GlobalOptionSpecs()));
    help += "\n" + Tr(QT_TRANSLATE_NOOP("HelpText", "\"nuq COMMAND --help\" shows the options of a command.")) + "\n";
    return help;
}

std::string GroupHelp(const Commands& commands, const std::string& group)
{
    const CommandGroup& table = *FindGroup(group);
    std::string help = FromTable(table.summary) + "\n\n" + Tr(QT_TRANSLATE_NOOP("HelpText", "Usage")) + "\n  nuq " +
                       group + " COMMAND [ARGUMENT]... [OPTION]...\n";
    if (*table.description != '\0')
        help += "\n" + Wrapped(FromTable(table.description), 0) + "\n";
    std::vector<Entry> entries;
    for (const auto& command : commands) {
        if (GroupNameOf(*command) == group)
            entries.push_back({WordOf(*command), FromTable(command->Spec().summary)});
    }
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Commands")), entries);
    //: %1 is the first word of commands that are called by two
    const QString hint =
        QCoreApplication::translate("HelpText", "\"nuq %1 COMMAND --help\" shows the options of a command.");
    return help + "\n" + hint.arg(QString::fromStdString(group)).toStdString() + "\n";
}

std::string CommandHelp(const Command& command)
{
    const CommandSpec& spec = command.Spec();
    std::string help = FromTable(spec.summary) + "\n";
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Examples")), ExampleEntries(spec.examples));
    help += "\n" + Tr(QT_TRANSLATE_NOOP("HelpText", "Usage")) + "\n  " + SynopsisOf(spec) + "\n";
    if (*spec.description != '\0')
        help += "\n" + Wrapped(FromTable(spec.description), 0) + "\n";
    std::vector<Entry> arguments;
    for (const ArgumentSpec& argument : spec.arguments)
        arguments.push_back({argument.name, FromTable(argument.help)});
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Arguments")), arguments);
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Options")), OptionEntries(spec.options));
    help += Block(Tr(QT_TRANSLATE_NOOP("HelpText", "Options of all commands")), OptionEntries(GlobalOptionSpecs()));
    return help;
}

} // namespace nuq
