#include "Commands/FamilyDrawCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/WrittenFiles.h"
#include "FamilyFiles/Drawing/DrawingPicture.h"
#include "FamilyFiles/Drawing/DrawingSvg.h"
#include "Program/Session.h"

namespace nuq {
namespace {

familyfiles::DrawingView ViewOf(const QString& name)
{
    if (name == QLatin1String("elevation"))
        return familyfiles::DrawingView::Elevation;
    return name == QLatin1String("profile") ? familyfiles::DrawingView::Profile : familyfiles::DrawingView::Plan;
}

bool IsSvg(const QString& path)
{
    return path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

} // namespace

const CommandSpec& FamilyDrawCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family draw",
        QT_TRANSLATE_NOOP("CommandTable", "Draw a view of a family with hidden lines, centre lines and connectors"),
        QT_TRANSLATE_NOOP("CommandTable", "The ending of the output says the kind: .svg for a drawing in millimetres, .png for a picture with transparent background."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file")}},
        {
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "The file to write, *.svg or *.png")},
            {"--view", "", "VIEW", QT_TRANSLATE_NOOP("CommandTable", "From above, from the front or from the right; by default plan"), {"plan", "elevation", "profile"}},
            {"--type", "-t", "NAME", QT_TRANSLATE_NOOP("CommandTable", "The type that is drawn; by default the first")},
            {"--size", "", "PIXELS", QT_TRANSLATE_NOOP("CommandTable", "Side of a picture, 16 to 4096; by default 512")},
        },
        {
            {"nuq family draw gate-valve.nuqfamily --view elevation -o valve.svg", QT_TRANSLATE_NOOP("CommandTable", "the front as a drawing")},
            {"nuq family draw gate-valve.nuqfamily --type DN50 --size 1024 -o valve.png", QT_TRANSLATE_NOOP("CommandTable", "another type from above as a picture")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyDrawCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.file);
    binder.Text("--output", m_options.output);
    binder.Text("--view", m_options.view);
    binder.Text("--type", m_options.type);
    binder.Number("--size", m_options.size, 16, 4096);
}

void FamilyDrawCommand::Check() const
{
    if (!IsSvg(m_options.output) && !m_options.output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        throw UsageError(Say(QT_TRANSLATE_NOOP(
            "Messages", "The command \"family draw\" needs --output with a file that ends in .svg or .png.")));
}

ExitCode FamilyDrawCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    const auto shape = BuildShape(session, m_options.file, m_options.type, code);
    if (!shape)
        return code;
    familyfiles::Reason reason;
    const auto drawing = shape->Draw(ViewOf(m_options.view), reason);
    if (!drawing)
        return FailWith(session, reason);
    WrittenFiles files(session);
    const bool isWritten =
        IsSvg(m_options.output)
            ? files.Write(m_options.output, QByteArray::fromStdString(familyfiles::DrawingSvg(*drawing)))
            : files.Write(m_options.output, familyfiles::DrawingPicture(*drawing, m_options.size));
    return isWritten ? files.Tell() : files.Code();
}

} // namespace nuq
