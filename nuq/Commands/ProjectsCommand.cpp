#include "Commands/ProjectsCommand.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

namespace nuq {
namespace {

using Projects = componentlibrary::ProjectsRequest::ResultType;

void WriteProjects(Session& session, const Projects& projects)
{
    JsonWriter json;
    json.BeginObject();
    json.List("projects", projects, [](JsonWriter& list, const auto& project) {
        list.BeginObject();
        list.Member("id", project->Id);
        list.Member("name", project->Name);
        list.EndObject();
    });
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& ProjectsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "projects",
        QT_TRANSLATE_NOOP("CommandTable", "List the collaboration projects"),
        QT_TRANSLATE_NOOP("CommandTable", "The ids are what the option --project of other commands takes."),
        {},
        {},
        {
            {"nuq projects", QT_TRANSLATE_NOOP("CommandTable", "ids and names")},
        },
    };
    // clang-format on
    return spec;
}

void ProjectsCommand::Bind(OptionBinder&) {}

ExitCode ProjectsCommand::Run(Session& session)
{
    const auto request = session.Catalogue().Projects();
    if (!session.Await(*request))
        return session.Fail(request->Error());
    if (session.Options().json) {
        WriteProjects(session, request->Result());
        return ExitCode::Done;
    }
    Table table =
        session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "ID"))}, {Title(QT_TRANSLATE_NOOP("Titles", "NAME"))}});
    for (const auto& project : request->Result())
        table.AddRow({VisibleText(project->Id), VisibleText(project->Name)});
    session.Out().Write(table.Take());
    return ExitCode::Done;
}

} // namespace nuq
