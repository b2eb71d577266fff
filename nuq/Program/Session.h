#pragma once

#include "Application/StandaloneHost.h"
#include "CommandLine/GlobalOptions.h"
#include "Errors/ErrorInfo.h"
#include "Output/JsonWriter.h"
#include "Output/ProgressLine.h"
#include "Output/StandardError.h"
#include "Output/StandardOutput.h"
#include "Output/Table.h"
#include "Program/ExitCode.h"
#include "Program/Interruption.h"
#include "Requests/Catalogue.h"

#include <memory>

namespace nuq {

/**
 * Everything a command needs while it runs: its global options, the host, the catalogue, and the two outputs.
 *
 * The host is made with the session, before anything of the library is used; the catalogue when it is first asked
 * for. Lives on the main thread.
 */
class Session
{
public:
    explicit Session(const GlobalOptions& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const GlobalOptions& Options() const { return m_options; }
    standalone::StandaloneHost& Host() { return m_host; }
    componentlibrary::Catalogue& Catalogue();

    StandardOutput& Out() { return m_out; }
    StandardError& Error() { return m_error; }
    /** How text on standard output looks. */
    const Style& Look() const { return m_look; }
    Interruption& Interrupt() { return m_interruption; }

    /** An empty table for standard output. */
    Table MakeTable(std::vector<Table::Column> columns) const;

    /** Whether progress is shown. */
    bool ShowsProgress() const;

    /**
     * Start a request and wait for its end, with progress on a terminal; Ctrl-C cancels it.
     * @return whether it has succeeded
     */
    bool Await(componentlibrary::RequestBase& request);

    /** Write a finished document and its line end. */
    void WriteDocument(JsonWriter& json);

    /** A remark for people on standard error; nothing with --quiet. */
    void Note(const QString& text);

    /** Tell the error: the sentence on standard error and, with --json, the error document. @return its exit code */
    ExitCode Fail(const componentlibrary::ErrorInfo& error);

    /** Tell the error on standard error only; the output already carries it. @return its exit code */
    ExitCode Tell(const componentlibrary::ErrorInfo& error);

    /**
     * Tell an error that is none of a request.
     * @param id stable text for the error document
     */
    ExitCode Fail(ExitCode code, const char* id, const QString& sentence, const QString& hint = QString());

    /** The last act: pass the output on and see whether that worked. @return the exit code of the program */
    ExitCode Finish(ExitCode code);

private:
    void PrintSentence(const QString& sentence, const QStringList& more);

    const GlobalOptions m_options;
    Interruption m_interruption;
    StandardOutput m_out;
    StandardError m_error;
    Style m_look;
    standalone::StandaloneHost m_host;
    std::unique_ptr<componentlibrary::Catalogue> m_catalogue;
};

} // namespace nuq
