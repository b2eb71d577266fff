#include "CommandLine/CommandLineParser.h"

#include "CommandLine/CommandGroups.h"
#include "CommandLine/OptionValues.h"
#include "CommandLine/Suggestion.h"
#include "CommandLine/UsageError.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <QCoreApplication>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>
#include <map>
#include <set>

namespace nuq {
namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

QString Decoded(const std::string& value, const QString& name)
{
    QTextCodec::ConverterState state;
    QString text = QTextCodec::codecForName("UTF-8")->toUnicode(value.data(), static_cast<int>(value.size()), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        throw UsageError(Tr(QT_TRANSLATE_NOOP("CommandLine", "The value of %1 is not valid UTF-8.")).arg(name));
    return text;
}

int WholeNumber(const std::string& value, const QString& name, int least, int most)
{
    bool isNumber = false;
    const QString text = Decoded(value, name);
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
        const QString message = Tr(QT_TRANSLATE_NOOP(
            "CommandLine", "The value of %1 has to be a whole number from %2 to %3, but it is \"%4\"."));
        throw UsageError(message.arg(name, QString::number(least), QString::number(most), text));
    }
    return number;
}

void CheckFilled(const QString& value, const QString& name)
{
    if (value.isEmpty())
        throw UsageError(Tr(QT_TRANSLATE_NOOP("CommandLine", "%1 must not be empty.")).arg(name));
}

void CheckChoice(const OptionSpec& spec, const QString& value)
{
    QStringList choices;
    for (const char* choice : spec.choices)
        choices << QString::fromLatin1(choice);
    if (choices.isEmpty() || choices.contains(value))
        return;
    const QString message =
        Tr(QT_TRANSLATE_NOOP("CommandLine", "The value of %1 has to be one of %2, but it is \"%3\"."));
    throw UsageError(message.arg(QString::fromLatin1(spec.name), choices.join(QStringLiteral(", ")), value));
}

std::string CliName(const OptionSpec& spec)
{
    const std::string shortName = spec.shortName;
    return shortName.empty() ? spec.name : shortName + "," + spec.name;
}

/// Binds one table to one CLI11 application.
class CliBinder final : public OptionBinder
{
public:
    CliBinder(CLI::App& app, const std::vector<OptionSpec>& options, const std::vector<ArgumentSpec>& arguments)
        : m_app(app), m_options(options), m_arguments(arguments)
    {
    }

    void Text(const char* name, QString& target) override
    {
        const OptionSpec& spec = Option(name);
        AddOption(spec, [&spec, &target](const std::string& value) {
            target = Decoded(value, QString::fromLatin1(spec.name));
            CheckChoice(spec, target);
            if (!spec.mayBeEmpty)
                CheckFilled(target, QString::fromLatin1(spec.name));
        });
    }

    void Number(const char* name, int& target, int least, int most) override
    {
        const OptionSpec& spec = Option(name);
        AddOption(spec, [&spec, &target, least, most](const std::string& value) {
            target = WholeNumber(value, QString::fromLatin1(spec.name), least, most);
        });
    }

    void Switch(const char* name, bool& target) override
    {
        m_app.add_flag_function(CliName(Option(name)), [&target](std::int64_t count) { target = count > 0; });
    }

    void Count(const char* name, int& target) override
    {
        m_app.add_flag_function(
            CliName(Option(name)), [&target](std::int64_t count) { target = static_cast<int>(count); });
    }

    void Argument(const char* name, QString& target) override
    {
        m_bound.insert(name);
        const QString label = QString::fromLatin1(name);
        m_app.add_option_function<std::string>(name, [&target, label](const std::string& value) {
            target = Decoded(value, label);
            CheckFilled(target, label);
        });
    }

    /// A table entry that no field takes would be accepted and ignored.
    void CheckAllBound() const
    {
        for (const OptionSpec& spec : m_options)
            CheckBound(spec.name);
        for (const ArgumentSpec& spec : m_arguments)
            CheckBound(spec.name);
    }

private:
    const OptionSpec& Option(const char* name)
    {
        m_bound.insert(name);
        const auto spec = std::find_if(m_options.begin(), m_options.end(),
            [name](const OptionSpec& candidate) { return std::string(candidate.name) == name; });
        if (spec == m_options.end())
            throw std::logic_error(std::string("the table lacks ") + name);
        return *spec;
    }

    void AddOption(const OptionSpec& spec, const std::function<void(const std::string&)>& take)
    {
        m_app.add_option_function<std::string>(CliName(spec), take)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }

    void CheckBound(const char* name) const
    {
        if (m_bound.count(name) == 0)
            throw std::logic_error(std::string("no field takes ") + name);
    }

    CLI::App& m_app;
    const std::vector<OptionSpec>& m_options;
    const std::vector<ArgumentSpec>& m_arguments;
    std::set<std::string> m_bound;
};

void BindGlobal(CLI::App& app, GlobalOptions& global, QString& colour)
{
    static const std::vector<ArgumentSpec> noArguments;
    CliBinder binder(app, GlobalOptionSpecs(), noArguments);
    binder.Switch("--help", global.wantsHelp);
    binder.Switch("--version", global.wantsVersion);
    binder.Switch("--json", global.json);
    binder.Switch("--quiet", global.quiet);
    binder.Count("--verbose", global.verbosity);
    binder.Text("--lang", global.language);
    binder.Text("--color", colour);
    binder.Number("--timeout", global.timeout, 1, 3600);
    binder.Switch("--no-input", global.noInput);
    binder.Switch("--offline", global.offline);
    binder.Text("--app-dir", global.applicationFolder);
    binder.Text("--environment", global.environment);
    binder.CheckAllBound();
}

ColourMode ModeOf(const QString& colour)
{
    if (colour == QLatin1String("always"))
        return ColourMode::Always;
    return colour == QLatin1String("never") ? ColourMode::Never : ColourMode::Auto;
}

QStringList OptionNames(const Command* command)
{
    QStringList names;
    for (const OptionSpec& spec : GlobalOptionSpecs())
        names << QString::fromLatin1(spec.name);
    if (command != nullptr) {
        for (const OptionSpec& spec : command->Spec().options)
            names << QString::fromLatin1(spec.name);
    }
    return names;
}

QString WithSuggestion(const QString& message, const QString& suggestion)
{
    if (suggestion.isEmpty())
        return message;
    //: %1 is a complaint, %2 what the user most likely meant
    return Tr(QT_TRANSLATE_NOOP("CommandLine", "%1 Did you mean \"%2\"?")).arg(message, suggestion);
}

[[noreturn]] void ComplainAboutOption(const std::string& option, const Command* command)
{
    const QString name = QString::fromStdString(option).section(QLatin1Char('='), 0, 0);
    const QString message = Tr(QT_TRANSLATE_NOOP("CommandLine", "There is no option \"%1\".")).arg(name);
    throw UsageError(WithSuggestion(message, Suggestion(name, OptionNames(command))));
}

/// @param group whose command the word was meant to be; "" for none
QStringList CommandNames(const Commands& commands, const std::string& group)
{
    QStringList names;
    for (const auto& known : commands) {
        if (group.empty() || GroupNameOf(*known) == group)
            names << QString::fromLatin1(known->Spec().name);
        // The group's word itself, once.
        const QString first = QString::fromStdString(GroupNameOf(*known));
        if (group.empty() && !first.isEmpty() && !names.contains(first))
            names << first;
    }
    return names;
}

[[noreturn]] void ComplainAboutWord(
    const std::string& word, const Commands& commands, const Command* command, const std::string& group)
{
    const QString text = QString::fromStdString(word);
    if (command != nullptr) {
        const QString message =
            Tr(QT_TRANSLATE_NOOP("CommandLine", "The command \"%1\" takes no further argument \"%2\"."));
        throw UsageError(message.arg(QString::fromLatin1(command->Spec().name), text));
    }
    const QString name = QString::fromStdString(group.empty() ? word : group + ' ' + word);
    const QString message = Tr(QT_TRANSLATE_NOOP("CommandLine", "There is no command \"%1\".")).arg(name);
    throw UsageError(WithSuggestion(message, Suggestion(name, CommandNames(commands, group))));
}

[[noreturn]] void ComplainAboutGroup(const Commands& commands, const std::string& group)
{
    QStringList words;
    for (const std::string& word : WordsOfGroup(commands, group))
        words << QString::fromStdString(word);
    const QString message =
        Tr(QT_TRANSLATE_NOOP("CommandLine", "The command \"%1\" needs one of these words behind it: %2."));
    throw UsageError(message.arg(QString::fromStdString(group), words.join(QStringLiteral(", "))));
}

void CheckRemaining(const CLI::App& app, const Commands& commands, const Command* command, const std::string& group)
{
    const std::vector<std::string> remaining = app.remaining(true);
    // An unknown command explains the unknown options behind it.
    for (const std::string& word : remaining) {
        if (command == nullptr && (word.empty() || word[0] != '-'))
            ComplainAboutWord(word, commands, command, group);
    }
    for (const std::string& word : remaining) {
        // A known option can only be left over behind "--", where it is a word like any other.
        const bool isKnown = OptionNames(command).contains(QString::fromStdString(word));
        if (word.size() > 1 && word[0] == '-' && word != "--" && !isKnown)
            ComplainAboutOption(word, command);
        if (word != "--")
            ComplainAboutWord(word, commands, command, group);
    }
}

void CheckArguments(const CLI::App& subcommand, const Command& command)
{
    for (const ArgumentSpec& argument : command.Spec().arguments) {
        if (argument.isRequired && subcommand.count(argument.name) == 0) {
            const QString message = Tr(QT_TRANSLATE_NOOP("CommandLine", "The command \"%1\" needs %2."));
            throw UsageError(message.arg(QString::fromLatin1(command.Spec().name), QString::fromLatin1(argument.name)));
        }
    }
}

void Configure(CLI::App& app)
{
    app.set_help_flag();
    app.allow_extras();
    app.fallthrough();
}

/// The applications that CLI11 has made for the commands and their groups.
class CommandTree
{
public:
    CommandTree(CLI::App& app, const Commands& commands)
    {
        for (const auto& command : commands)
            Add(app, *command);
    }

    /// The command that was named, null for none.
    Command* Named() const
    {
        for (const auto& [command, subcommand] : m_commands) {
            if (subcommand->parsed())
                return command;
        }
        return nullptr;
    }

    /// The group that was named, "" for none.
    std::string NamedGroup() const
    {
        for (const auto& [name, subcommand] : m_groups) {
            if (subcommand->parsed())
                return name;
        }
        return std::string();
    }

    const CLI::App& AppOf(Command* command) const { return *m_commands.at(command); }

private:
    void Add(CLI::App& app, Command& command)
    {
        const std::string group = GroupNameOf(command);
        CLI::App* subcommand = (group.empty() ? app : GroupApp(app, group)).add_subcommand(WordOf(command));
        Configure(*subcommand);
        CliBinder binder(*subcommand, command.Spec().options, command.Spec().arguments);
        command.Bind(binder);
        binder.CheckAllBound();
        m_commands.emplace(&command, subcommand);
    }

    CLI::App& GroupApp(CLI::App& app, const std::string& name)
    {
        CLI::App*& group = m_groups[name];
        if (group == nullptr) {
            group = app.add_subcommand(name);
            Configure(*group);
            group->require_subcommand(0, 1);
        }
        return *group;
    }

    std::map<Command*, CLI::App*> m_commands;
    std::map<std::string, CLI::App*> m_groups;
};

/// CLI11's own wording is English and technical; what can still go wrong here is a missing or superfluous value.
[[noreturn]] void Complain(const CLI::ParseError& error)
{
    const QString name = QString::fromUtf8(error.what()).section(QLatin1Char(':'), 0, 0);
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ArgumentMismatch))
        throw UsageError(Tr(QT_TRANSLATE_NOOP("CommandLine", "The option %1 needs a value.")).arg(name));
    throw UsageError(Tr(QT_TRANSLATE_NOOP("CommandLine", "The command line cannot be understood: %1."))
                         .arg(QString::fromUtf8(error.what())));
}

void Parse(CLI::App& app, const std::vector<std::string>& arguments)
{
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        Complain(error);
    }
}

} // namespace

ParsedCommandLine ParseCommandLine(const Commands& commands, const std::vector<std::string>& arguments)
{
    ParsedCommandLine parsed;
    CLI::App app("", "nuq");
    Configure(app);
    app.require_subcommand(0, 1);
    QString colour;
    BindGlobal(app, parsed.global, colour);
    const CommandTree tree(app, commands);
    CheckOptionValues(commands, arguments);
    Parse(app, arguments);
    parsed.global.colour = ModeOf(colour);
    parsed.command = tree.Named();
    const std::string group = tree.NamedGroup();
    CheckRemaining(app, commands, parsed.command, group);
    if (parsed.global.wantsHelp) {
        parsed.group = parsed.command == nullptr ? group : std::string();
        return parsed;
    }
    if (parsed.command != nullptr) {
        CheckArguments(tree.AppOf(parsed.command), *parsed.command);
        parsed.command->Check();
    } else if (!group.empty()) {
        ComplainAboutGroup(commands, group);
    }
    return parsed;
}

GlobalOptions PeekGlobalOptions(const std::vector<std::string>& arguments)
{
    GlobalOptions options;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        const std::string next = at + 1 < arguments.size() ? arguments[at + 1] : std::string();
        if (argument == "--json")
            options.json = true;
        else if (argument == "--quiet" || argument == "-q")
            options.quiet = true;
        else if (argument == "--lang")
            options.language = QString::fromStdString(next);
        else if (argument.rfind("--lang=", 0) == 0)
            options.language = QString::fromStdString(argument.substr(7));
        else if (argument == "--color")
            options.colour = ModeOf(QString::fromStdString(next));
        else if (argument.rfind("--color=", 0) == 0)
            options.colour = ModeOf(QString::fromStdString(argument.substr(8)));
    }
    return options;
}

} // namespace nuq
