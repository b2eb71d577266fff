#include "Program/Program.h"

#include "Application/ProductVersion.h"
#include "CommandLine/CommandLineParser.h"
#include "CommandLine/HelpText.h"
#include "CommandLine/UsageError.h"
#include "Commands/CommandList.h"
#include "Commands/VersionCommand.h"
#include "Language/Translations.h"
#include "Output/VisibleText.h"
#include "Program/ErrorDocument.h"
#include "Program/Proxies.h"
#include "Program/Session.h"
#include "Program/StandardStreams.h"

#include <QCoreApplication>

static void InitResources()
{
    // The macro needs a function outside every namespace.
    Q_INIT_RESOURCE(NuqTranslations);
}

namespace nuq {
namespace {

std::vector<std::string> ArgumentsOf(int argc, char* argv[])
{
    std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    // "help COMMAND" is what many fingers type for "COMMAND --help".
    if (!arguments.empty() && arguments.front() == "help") {
        arguments.erase(arguments.begin());
        arguments.emplace_back("--help");
    }
    return arguments;
}

std::unique_ptr<componentlibrary::Translations> InstallLanguage(GlobalOptions& options)
{
    if (options.language.isEmpty())
        options.language = componentlibrary::Translations::LanguageOfEnvironment();
    if (options.language == QLatin1String("zh"))
        InitResources();
    return std::make_unique<componentlibrary::Translations>(
        options.language, std::vector<QString>{QStringLiteral(":/translations/Nuq")});
}

ExitCode Print(const std::string& text)
{
    StandardOutput out;
    out.Write(text);
    out.Flush();
    return out.Fault().empty() ? ExitCode::Done : ExitCode::Failed;
}

ExitCode ReportUsage(const QString& message, const GlobalOptions& options)
{
    const QString hint = QCoreApplication::translate("Program", "\"nuq --help\" shows what is possible.");
    if (options.json) {
        JsonWriter json;
        json.BeginObject();
        WriteError(json, "usage", message, hint);
        json.Member("schema", kSchema);
        json.EndObject();
        Print(json.Take());
    }
    //: %1 is a complaint, %2 says where help is; both are whole sentences
    const QString line = QCoreApplication::translate("Program", "%1 %2").arg(message, hint);
    StandardError(Style()).Message(VisibleText(line));
    return ExitCode::Usage;
}

ExitCode RunCommand(Command& command, const GlobalOptions& options)
{
    InstallProxies();
    Session session(options);
    return session.Finish(command.Run(session));
}

ExitCode Act(const Commands& commands, const ParsedCommandLine& parsed, const GlobalOptions& options)
{
    if (parsed.global.wantsHelp && !parsed.group.empty())
        return Print(GroupHelp(commands, parsed.group));
    if (parsed.global.wantsHelp)
        return Print(parsed.command == nullptr ? OverviewHelp(commands) : CommandHelp(*parsed.command));
    if (parsed.global.wantsVersion && options.json) {
        VersionCommand version;
        return RunCommand(version, options);
    }
    if (parsed.global.wantsVersion)
        return Print("nuq " + standalone::ProductVersion().toStdString() + "\n");
    if (parsed.command == nullptr)
        return ReportUsage(QCoreApplication::translate("Program", "A command is missing."), options);
    return RunCommand(*parsed.command, options);
}

} // namespace

int RunProgram(int argc, char* argv[])
{
    HoldStandardStreams();
    const std::vector<std::string> arguments = ArgumentsOf(argc, argv);
    QCoreApplication application(argc, argv);
    // The only plug-ins that a console program would load are those that ask the desktop's network manager over D-Bus
    // whether there is a network: an error says that better.
    QCoreApplication::setLibraryPaths(QStringList());
    QCoreApplication::setApplicationName(QStringLiteral("nuq"));
    GlobalOptions options = PeekGlobalOptions(arguments);
    const auto translations = InstallLanguage(options);
    const Commands commands = MakeCommands();
    try {
        ParsedCommandLine parsed = ParseCommandLine(commands, arguments);
        parsed.global.language = options.language;
        return static_cast<int>(Act(commands, parsed, parsed.global));
    } catch (const UsageError& error) {
        return static_cast<int>(ReportUsage(error.Message(), options));
    } catch (const std::exception& error) {
        StandardError(Style()).Message(error.what());
        return static_cast<int>(ExitCode::Failed);
    }
}

} // namespace nuq
