#include "Commands/ComponentCommand.h"

#include "Commands/ComponentFields.h"
#include "Commands/RecordJson.h"
#include "Program/Session.h"

#include <QtGlobal>

namespace nuq {

const CommandSpec& ComponentCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "component",
        QT_TRANSLATE_NOOP("CommandTable", "Show one component with its family types and thumbnails"),
        "",
        {{"ID", QT_TRANSLATE_NOOP("CommandTable", "The id of the component")}},
        {
            {"--project", "-p", "ID", QT_TRANSLATE_NOOP("CommandTable", "The component is one of this project's library")},
        },
        {
            {"nuq component ID", QT_TRANSLATE_NOOP("CommandTable", "one component of the public catalogue")},
            {"nuq component ID --json", QT_TRANSLATE_NOOP("CommandTable", "the same for a script")},
        },
    };
    // clang-format on
    return spec;
}

void ComponentCommand::Bind(OptionBinder& binder)
{
    binder.Argument("ID", m_options.id);
    binder.Text("--project", m_options.projectId);
}

ExitCode ComponentCommand::Run(Session& session)
{
    const auto request = session.Catalogue().Component(m_options.id, m_options.projectId);
    if (!session.Await(*request))
        return session.Fail(request->Error());
    const tarnnuq::IDetailedProjectComponent& component = *request->Result();
    if (!session.Options().json) {
        session.Out().Write(ComponentFields(component).Text(session.Look()));
        return ExitCode::Done;
    }
    JsonWriter json;
    json.BeginObject();
    json.Key("component");
    WriteComponentDetail(json, component);
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
    return ExitCode::Done;
}

} // namespace nuq
