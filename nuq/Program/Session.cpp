#include "Program/Session.h"

#include "Errors/ErrorTexts.h"
#include "Output/Terminal.h"
#include "Output/VisibleText.h"
#include "Program/ErrorDocument.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>

namespace nuq {

using componentlibrary::ErrorInfo;
using componentlibrary::RequestBase;

namespace {

bool UsesColour(ColourMode mode, Stream stream)
{
    if (mode != ColourMode::Auto)
        return mode == ColourMode::Always;
    return IsTerminal(stream) && !EnvironmentRefusesColour();
}

standalone::StandaloneHostOptions HostOptions(const GlobalOptions& options)
{
    standalone::StandaloneHostOptions host;
    host.programName = QStringLiteral("nuq");
    host.appDir = options.applicationFolder;
    host.environment = options.environment;
    host.language = options.language;
    // The sentences of the program say what went wrong; the log would say it a second time.
    host.consoleLevel = options.verbosity < 2    ? standalone::LogLevel::Off
                        : options.verbosity == 2 ? standalone::LogLevel::Info
                                                 : standalone::LogLevel::Debug;
    return host;
}

componentlibrary::ChannelSettings ChannelSettingsOf(const GlobalOptions& options)
{
    componentlibrary::ChannelSettings settings;
    settings.timeLimit = options.timeout * 1000;
    settings.isOffline = options.offline;
    settings.language = options.language == QLatin1String("zh") ? "zh-CN" : "en";
    return settings;
}

QString RetryText(int next, int milliseconds)
{
    return QCoreApplication::translate("Session", "The server cannot answer now; try %1 in %2 s ...")
        .arg(next)
        .arg(QLocale().toString(milliseconds / 1000.0, 'f', 1));
}

QString ProgressText(qint64 received, qint64 total)
{
    const QString amount = QLocale().formattedDataSize(received, 1);
    if (total <= 0)
        return QCoreApplication::translate("Session", "Loading ... %1").arg(amount);
    return QCoreApplication::translate("Session", "Loading ... %1 (%2 %)").arg(amount).arg(received * 100 / total);
}

} // namespace

Session::Session(const GlobalOptions& options)
    : m_options(options), m_out(&Interruption::HasHappened), m_error(Style(UsesColour(options.colour, Stream::Error))),
      m_look(UsesColour(options.colour, Stream::Output)), m_host(HostOptions(options))
{
}

Session::~Session() = default;

componentlibrary::Catalogue& Session::Catalogue()
{
    if (m_catalogue == nullptr)
        m_catalogue = std::make_unique<componentlibrary::Catalogue>(ChannelSettingsOf(m_options));
    return *m_catalogue;
}

Table Session::MakeTable(std::vector<Table::Column> columns) const
{
    return Table(std::move(columns), m_look, TerminalWidth(Stream::Output));
}

bool Session::ShowsProgress() const
{
    return !m_options.quiet && IsTerminal(Stream::Error);
}

bool Session::Await(RequestBase& request)
{
    ProgressLine progress(m_error, ShowsProgress());
    QString state = QCoreApplication::translate("Session", "Waiting for the server ...");
    QEventLoop loop;
    QTimer drawing;
    QObject::connect(&drawing, &QTimer::timeout, &loop, [&] { progress.Show(state); });
    if (ShowsProgress())
        drawing.start(100);
    QObject::connect(&request, &RequestBase::Finished, &loop, &QEventLoop::quit);
    QObject::connect(&m_interruption, &Interruption::Happened, &request, &RequestBase::Cancel);
    QObject::connect(&request, &RequestBase::Retrying, &loop,
        [&state](int next, int milliseconds) { state = RetryText(next, milliseconds); });
    QObject::connect(&request, &RequestBase::Progressed, &loop,
        [&state](qint64 received, qint64 total) { state = ProgressText(received, total); });
    request.Start();
    if (Interruption::HasHappened())
        request.Cancel();
    if (!request.HasEnded())
        loop.exec();
    return request.CurrentState() == RequestBase::State::Succeeded;
}

void Session::WriteDocument(JsonWriter& json)
{
    m_out.Write(json.Take());
}

void Session::Note(const QString& text)
{
    if (!m_options.quiet)
        m_error.Line(m_error.Look().Paint(Emphasis::Quiet, VisibleText(text)));
}

void Session::PrintSentence(const QString& sentence, const QStringList& more)
{
    m_error.Message(m_error.Look().Paint(Emphasis::Bad, VisibleText(sentence)));
    for (const QString& line : more) {
        if (!line.isEmpty() && !m_options.quiet)
            m_error.Line("     " + VisibleText(line));
    }
}

ExitCode Session::Fail(const ErrorInfo& error)
{
    if (m_options.json) {
        JsonWriter json;
        json.BeginObject();
        WriteError(json, error);
        json.Member("schema", kSchema);
        json.EndObject();
        WriteDocument(json);
    }
    return Tell(error);
}

ExitCode Session::Tell(const ErrorInfo& error)
{
    m_out.Flush();
    PrintSentence(ErrorSentence(error), {ServerRemark(error), ErrorHint(error)});
    if (m_options.verbosity > 0) {
        for (const QString& line : ErrorDetails(error))
            m_error.Line("     " + VisibleText(line));
    }
    return ExitCodeOf(error);
}

ExitCode Session::Fail(ExitCode code, const char* id, const QString& sentence, const QString& hint)
{
    if (m_options.json) {
        JsonWriter json;
        json.BeginObject();
        WriteError(json, id, sentence, hint);
        json.Member("schema", kSchema);
        json.EndObject();
        WriteDocument(json);
    }
    PrintSentence(sentence, {hint});
    return code;
}

ExitCode Session::Finish(ExitCode code)
{
    m_out.Flush();
    if (m_out.Fault().empty() || code == ExitCode::Interrupted || code == ExitCode::Terminated)
        return code;
    const QString text = QCoreApplication::translate("Session", "The output could not be written: %1.");
    m_error.Message(VisibleText(text.arg(QString::fromLocal8Bit(m_out.Fault().c_str()))));
    return ExitCode::Failed;
}

} // namespace nuq
