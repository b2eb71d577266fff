#include "Commands/FamilyRenderCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/WrittenFiles.h"
#include "Program/Session.h"

#include <QImage>

namespace nuq {

const CommandSpec& FamilyRenderCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family render",
        QT_TRANSLATE_NOOP("CommandTable", "Make a shaded picture of a family"),
        QT_TRANSLATE_NOOP("CommandTable", "A PNG with transparent background, the same on every machine; no graphics card or display is needed."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file")}},
        {
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "The file to write, *.png")},
            {"--type", "-t", "NAME", QT_TRANSLATE_NOOP("CommandTable", "The type that is shown; by default the first")},
            {"--size", "", "PIXELS", QT_TRANSLATE_NOOP("CommandTable", "Side of the picture, 16 to 4096; by default 512")},
        },
        {
            {"nuq family render gate-valve.nuqfamily -o valve.png", QT_TRANSLATE_NOOP("CommandTable", "the first type")},
            {"nuq family render gate-valve.nuqfamily --type DN50 --size 128 -o valve.png", QT_TRANSLATE_NOOP("CommandTable", "another type as a thumbnail")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyRenderCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.file);
    binder.Text("--output", m_options.output);
    binder.Text("--type", m_options.type);
    binder.Number("--size", m_options.size, 16, 4096);
}

void FamilyRenderCommand::Check() const
{
    if (!m_options.output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        throw UsageError(Say(QT_TRANSLATE_NOOP(
            "Messages", "The command \"family render\" needs --output with a file that ends in .png.")));
}

ExitCode FamilyRenderCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    auto shape = BuildShape(session, m_options.file, m_options.type, code);
    if (!shape)
        return code;
    familyfiles::Reason reason;
    const auto picture = shape->Render(m_options.size, reason);
    if (!picture)
        return FailWith(session, reason);
    WrittenFiles files(session);
    return files.Write(m_options.output, *picture) ? files.Tell() : files.Code();
}

} // namespace nuq
