#include "Commands/SpecificationsCommand.h"

#include "Commands/RecordJson.h"
#include "Commands/SpecificationText.h"
#include "Commands/Texts.h"
#include "Program/Session.h"

namespace nuq {
namespace {

void WriteDocument(Session& session, const QString& componentId, const Specifications& specifications)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("componentId", componentId);
    json.Member("schema", kSchema);
    json.List("specifications", specifications,
        [](JsonWriter& list, const auto& specification) { WriteSpecification(list, *specification); });
    json.EndObject();
    session.WriteDocument(json);
}

ExitCode Show(Session& session, const QString& componentId, const Specifications& specifications)
{
    if (session.Options().json)
        WriteDocument(session, componentId, specifications);
    else
        session.Out().Write(SpecificationTable(session, specifications));
    if (specifications.empty())
        session.Note(Say(QT_TRANSLATE_NOOP("Messages", "The component has no family types.")));
    return ExitCode::Done;
}

} // namespace

const CommandSpec& SpecificationsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "specifications",
        QT_TRANSLATE_NOOP("CommandTable", "Show the family types of a component with their values"),
        QT_TRANSLATE_NOOP("CommandTable", "A value that the family type does not give is shown as \"-\"."),
        {{"ID", QT_TRANSLATE_NOOP("CommandTable", "The id of the component")}},
        {
            {"--type", "-t", "NAME", QT_TRANSLATE_NOOP("CommandTable", "Only the family type of this name")},
            {"--project", "-p", "ID", QT_TRANSLATE_NOOP("CommandTable", "The component is one of this project's library")},
        },
        {
            {"nuq specifications ID", QT_TRANSLATE_NOOP("CommandTable", "all family types")},
            {"nuq specifications ID --type DN50", QT_TRANSLATE_NOOP("CommandTable", "one of them")},
        },
    };
    // clang-format on
    return spec;
}

void SpecificationsCommand::Bind(OptionBinder& binder)
{
    binder.Argument("ID", m_options.id);
    binder.Text("--type", m_options.type);
    binder.Text("--project", m_options.projectId);
}

ExitCode SpecificationsCommand::Run(Session& session)
{
    if (m_options.type.isEmpty()) {
        const auto request = session.Catalogue().Specifications(m_options.id, m_options.projectId);
        if (!session.Await(*request))
            return session.Fail(request->Error());
        return Show(session, m_options.id, request->Result());
    }
    const auto request = session.Catalogue().Specification(m_options.id, m_options.type, m_options.projectId);
    if (!session.Await(*request))
        return session.Fail(request->Error());
    return Show(session, m_options.id, {request->Result()});
}

} // namespace nuq
