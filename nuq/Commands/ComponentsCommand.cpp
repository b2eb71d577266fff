#include "Commands/ComponentsCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/ComponentText.h"
#include "Commands/RecordJson.h"
#include "Commands/StreamRun.h"
#include "Commands/Texts.h"
#include "Program/ErrorDocument.h"
#include "Program/Session.h"

namespace nuq {

using componentlibrary::ComponentQuery;
using componentlibrary::ComponentStream;
using componentlibrary::ErrorCode;
using componentlibrary::ErrorInfo;
using componentlibrary::StreamSummary;

namespace {

using Components = ComponentStream::Page;

QString RangeText(const ComponentQuery& query, int received, int total)
{
    if (total == 0) {
        if (query.keyword.isEmpty())
            return Say(QT_TRANSLATE_NOOP("Messages", "There are no components here."));
        return Say(QT_TRANSLATE_NOOP("Messages", "No component matches \"%1\" here.")).arg(query.keyword);
    }
    if (received == 0) {
        const int pages = (total + query.pageSize - 1) / query.pageSize;
        return Say(QT_TRANSLATE_NOOP("Messages", "The last page is page %1.")).arg(pages);
    }
    const int first = (query.page - 1) * query.pageSize + 1;
    return Say(QT_TRANSLATE_NOOP("Messages", "%1-%2 of %3"))
        .arg(QString::fromStdString(Grouped(first)), QString::fromStdString(Grouped(first + received - 1)),
            QString::fromStdString(Grouped(total)));
}

void WritePage(JsonWriter& json, const Components& components, const ComponentQuery& query, int total)
{
    json.BeginObject();
    json.List(
        "components", components, [](JsonWriter& list, const auto& component) { WriteComponent(list, *component); });
    json.Member("page", query.page);
    json.Member("pageSize", query.pageSize);
    json.Member("schema", kSchema);
    json.Member("totalCount", total);
    json.EndObject();
}

QString ChangedText()
{
    return Say(QT_TRANSLATE_NOOP(
        "Messages", "The catalogue changed while it was listed; list again to be sure that nothing is missing."));
}

/// The rows of a table, page by page.
class TableListing
{
public:
    explicit TableListing(Session& session) : m_session(session), m_table(ComponentTable(session)) {}

    void Add(const Components& components)
    {
        AddComponents(m_table, components);
        m_session.Out().Write(m_table.Take());
        m_session.Out().Flush();
    }

private:
    Session& m_session;
    Table m_table;
};

void WriteErrorMember(JsonWriter& json, const ErrorInfo& error)
{
    json.Key("error");
    json.BeginObject();
    WriteError(json, error);
    json.EndObject();
}

void WriteSummary(JsonWriter& json, const StreamSummary& summary)
{
    json.Key("summary");
    json.BeginObject();
    json.Member("changed", summary.hasChanged);
    json.Member("count", summary.delivered);
    json.Member("totalCount", summary.totalCount);
    json.EndObject();
}

/// One JSON document a line, the last one a summary or the error.
class LineListing
{
public:
    explicit LineListing(Session& session) : m_session(session) {}

    void Add(const Components& components)
    {
        for (const auto& component : components) {
            m_json.BeginObject();
            m_json.Key("component");
            WriteComponent(m_json, *component);
            m_json.EndObject();
            m_session.Out().Write(m_json.Buffer());
            m_session.Out().Write("\n");
            m_json.Clear();
        }
        m_session.Out().Flush();
    }

    void End(const ComponentStream& stream)
    {
        m_json.BeginObject();
        if (stream.Error().IsError())
            WriteErrorMember(m_json, stream.Error());
        m_json.Member("schema", kSchema);
        if (!stream.Error().IsError())
            WriteSummary(m_json, stream.Summary());
        m_json.EndObject();
        m_session.WriteDocument(m_json);
    }

private:
    Session& m_session;
    JsonWriter m_json;
};

/// One document for everything, written page by page.
class DocumentListing
{
public:
    explicit DocumentListing(Session& session) : m_session(session)
    {
        m_json.BeginObject();
        m_json.Key("components");
        m_json.BeginArray(true);
    }

    void Add(const Components& components)
    {
        for (const auto& component : components)
            WriteComponent(m_json, *component);
        m_session.Out().Write(m_json.Buffer());
        m_json.Clear();
        m_hasBegun = true;
    }

    /// Whether a part is already written: from then on an error can only stand inside the document.
    bool HasBegun() const { return m_hasBegun; }

    void End(const ComponentStream& stream)
    {
        m_json.EndArray();
        if (stream.Error().IsError())
            WriteErrorMember(m_json, stream.Error());
        m_json.Member("schema", kSchema);
        WriteSummary(m_json, stream.Summary());
        m_json.EndObject();
        m_session.WriteDocument(m_json);
    }

private:
    Session& m_session;
    JsonWriter m_json;
    bool m_hasBegun = false;
};

/// A reader that has seen enough is no failure.
bool IsClosedPipe(Session& session, const ComponentStream& stream)
{
    return stream.Error().code == ErrorCode::Cancelled && session.Out().IsClosed() && !Interruption::HasHappened();
}

ExitCode EndListing(Session& session, const ComponentStream& stream)
{
    if (stream.Error().IsError())
        return session.Fail(stream.Error());
    if (stream.Summary().hasChanged)
        session.Note(ChangedText());
    if (stream.Summary().delivered == 0)
        session.Note(Say(QT_TRANSLATE_NOOP("Messages", "There are no components here.")));
    return ExitCode::Done;
}

ExitCode ListAsTable(Session& session, ComponentStream& stream)
{
    TableListing listing(session);
    RunStream(session, stream, [&listing](const Components& page) { listing.Add(page); });
    return IsClosedPipe(session, stream) ? ExitCode::Done : EndListing(session, stream);
}

ExitCode ListAsLines(Session& session, ComponentStream& stream)
{
    LineListing listing(session);
    RunStream(session, stream, [&listing](const Components& page) { listing.Add(page); });
    if (IsClosedPipe(session, stream))
        return ExitCode::Done;
    listing.End(stream);
    return stream.Error().IsError() ? session.Tell(stream.Error()) : EndListing(session, stream);
}

ExitCode ListAsDocument(Session& session, ComponentStream& stream)
{
    DocumentListing listing(session);
    RunStream(session, stream, [&listing](const Components& page) { listing.Add(page); });
    if (IsClosedPipe(session, stream))
        return ExitCode::Done;
    if (stream.Error().IsError() && !listing.HasBegun())
        return session.Fail(stream.Error());
    listing.End(stream);
    return stream.Error().IsError() ? session.Tell(stream.Error()) : EndListing(session, stream);
}

} // namespace

const CommandSpec& ComponentsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "components",
        QT_TRANSLATE_NOOP("CommandTable", "List components of a category, a search or a project"),
        QT_TRANSLATE_NOOP("CommandTable", "Without --all one page is shown. With --all --json the document is written page by page; with --stream as well each line is one JSON document, the last one a summary or the error. Memory stays small however long the list is."),
        {},
        {
            {"--category", "-c", "CODE", QT_TRANSLATE_NOOP("CommandTable", "Only components of this category and those below it")},
            {"--keyword", "-k", "TEXT", QT_TRANSLATE_NOOP("CommandTable", "Only components that match this text"), {}, true},
            {"--project", "-p", "ID", QT_TRANSLATE_NOOP("CommandTable", "The library of this project instead of the public catalogue")},
            {"--page", "", "NUMBER", QT_TRANSLATE_NOOP("CommandTable", "Page to show, from 1; by default 1")},
            {"--page-size", "", "NUMBER", QT_TRANSLATE_NOOP("CommandTable", "Components of a page, 1 to 200; by default 20, with --all 200")},
            {"--all", "-a", "", QT_TRANSLATE_NOOP("CommandTable", "List all pages")},
            {"--stream", "", "", QT_TRANSLATE_NOOP("CommandTable", "With --all --json: one JSON document a line, as soon as it is there")},
        },
        {
            {"nuq components --category CODE", QT_TRANSLATE_NOOP("CommandTable", "the first page of a category")},
            {"nuq components --keyword DN50 --page 2", QT_TRANSLATE_NOOP("CommandTable", "the second page of a search")},
            {"nuq components --all --json --stream | head", QT_TRANSLATE_NOOP("CommandTable", "the beginning of the whole catalogue")},
        },
    };
    // clang-format on
    return spec;
}

void ComponentsCommand::Bind(OptionBinder& binder)
{
    binder.Text("--category", m_options.query.categoryCode);
    binder.Text("--keyword", m_options.query.keyword);
    binder.Text("--project", m_options.query.projectId);
    binder.Number("--page", m_options.page, 1, 10000000);
    binder.Number("--page-size", m_options.pageSize, 1, ComponentQuery::MaximumPageSize);
    binder.Switch("--all", m_options.all);
    binder.Switch("--stream", m_options.stream);
}

void ComponentsCommand::Check() const
{
    if (m_options.all && m_options.page != 0)
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "--all and --page cannot be used together.")));
    if (m_options.stream && !m_options.all)
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "--stream needs --all.")));
}

ExitCode ComponentsCommand::Run(Session& session)
{
    m_options.query.page = m_options.page == 0 ? 1 : m_options.page;
    m_options.query.pageSize = m_options.pageSize;
    if (m_options.pageSize == 0)
        m_options.query.pageSize = m_options.all ? ComponentQuery::MaximumPageSize : 20;
    return m_options.all ? RunAll(session) : RunPage(session);
}

ExitCode ComponentsCommand::RunPage(Session& session)
{
    const auto request = session.Catalogue().ComponentPage(m_options.query);
    if (!session.Await(*request))
        return session.Fail(request->Error());
    const auto& page = request->Result();
    if (session.Options().json) {
        JsonWriter json;
        WritePage(json, page.List, m_options.query, page.TotalCount);
        session.WriteDocument(json);
        return ExitCode::Done;
    }
    Table table = ComponentTable(session);
    AddComponents(table, page.List);
    session.Out().Write(table.Take());
    session.Out().Flush();
    session.Note(RangeText(m_options.query, static_cast<int>(page.List.size()), page.TotalCount));
    return ExitCode::Done;
}

ExitCode ComponentsCommand::RunAll(Session& session)
{
    ComponentStream stream(session.Catalogue(), m_options.query);
    if (!session.Options().json)
        return ListAsTable(session, stream);
    return m_options.stream ? ListAsLines(session, stream) : ListAsDocument(session, stream);
}

} // namespace nuq
