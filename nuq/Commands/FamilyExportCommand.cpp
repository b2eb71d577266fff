#include "Commands/FamilyExportCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/WrittenFiles.h"
#include "Program/Session.h"

namespace nuq {

using familyfiles::FamilyShape;
using familyfiles::Reason;
using familyfiles::StepSchema;

const CommandSpec& FamilyExportCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family export",
        QT_TRANSLATE_NOOP("CommandTable", "Write the geometry of a family for other programs: STEP, glTF, STL"),
        QT_TRANSLATE_NOOP("CommandTable", "Several kinds can be written at once. STEP holds the exact body in millimetres, the others its surface as triangles."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file")}},
        {
            {"--step", "", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Write a STEP file")},
            {"--schema", "", "SCHEMA", QT_TRANSLATE_NOOP("CommandTable", "With --step: its application protocol; by default ap214, which every program reads"), {"ap214", "ap242"}},
            {"--gltf", "", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Write a glTF file")},
            {"--stl", "", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Write an STL file")},
            {"--type", "-t", "NAME", QT_TRANSLATE_NOOP("CommandTable", "The type that is written; by default the first")},
        },
        {
            {"nuq family export gate-valve.nuqfamily --step valve.step", QT_TRANSLATE_NOOP("CommandTable", "for a CAD program")},
            {"nuq family export gate-valve.nuqfamily --type DN50 --gltf valve.gltf --stl valve.stl", QT_TRANSLATE_NOOP("CommandTable", "for viewers and printers")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyExportCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.file);
    binder.Text("--step", m_options.step);
    binder.Text("--schema", m_options.schema);
    binder.Text("--gltf", m_options.gltf);
    binder.Text("--stl", m_options.stl);
    binder.Text("--type", m_options.type);
}

void FamilyExportCommand::Check() const
{
    if (m_options.step.isEmpty() && m_options.gltf.isEmpty() && m_options.stl.isEmpty())
        throw UsageError(
            Say(QT_TRANSLATE_NOOP("Messages", "The command \"family export\" needs --step, --gltf or --stl.")));
}

ExitCode FamilyExportCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    const auto shape = BuildShape(session, m_options.file, m_options.type, code);
    if (!shape)
        return code;
    WrittenFiles files(session);
    Reason reason;
    const auto write = [&files, &reason](const QString& path, const auto& writer) {
        if (path.isEmpty())
            return true;
        files.Add(path);
        return writer(path.toStdString(), reason);
    };
    const StepSchema schema = m_options.schema == QLatin1String("ap242") ? StepSchema::Ap242 : StepSchema::Ap214;
    const bool isWritten = write(m_options.step, [&shape, schema](const std::string& path, Reason& why) {
        return shape->WriteStep(path, schema, why);
    }) && write(m_options.gltf, [&shape](const std::string& path, Reason& why) {
        return shape->WriteGltf(path, why);
    }) && write(m_options.stl, [&shape](const std::string& path, Reason& why) { return shape->WriteStl(path, why); });
    return isWritten ? files.Tell() : FailWith(session, reason);
}

} // namespace nuq
