#include "Commands/FamilySheetCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyPaths.h"
#include "Families/SheetPictures.h"
#include "Families/WrittenFiles.h"
#include "Program/Session.h"

#include <QDirIterator>

namespace nuq {
namespace {

QStringList PictureFiles(const QString& folder, const QString& name)
{
    QStringList found;
    QDirIterator files(folder, {name}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found << files.next();
    found.sort();
    return found;
}

} // namespace

const CommandSpec& FamilySheetCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family sheet",
        QT_TRANSLATE_NOOP("CommandTable", "Put the pictures or drawings of many families on one sheet"),
        QT_TRANSLATE_NOOP("CommandTable", "Of each family the first type is shown. With --files picture files of a name are put on the sheet, for example the thumbnails of a library."),
        {{"PATH", QT_TRANSLATE_NOOP("CommandTable", "A folder with family files, or one such file")}},
        {
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "The file to write, *.png")},
            {"--content", "", "KIND", QT_TRANSLATE_NOOP("CommandTable", "Shaded pictures, or three drawings of each family; by default pictures"), {"pictures", "drawings"}},
            {"--files", "", "NAME", QT_TRANSLATE_NOOP("CommandTable", "Picture files of this name below the folder instead, for example 128.png")},
            {"--columns", "", "NUMBER", QT_TRANSLATE_NOOP("CommandTable", "Pictures side by side, 1 to 100; by default 8, for drawings 6")},
            {"--size", "", "PIXELS", QT_TRANSLATE_NOOP("CommandTable", "Side of each picture, 16 to 512; by default 128")},
            {"--dark", "", "", QT_TRANSLATE_NOOP("CommandTable", "On dark ground")},
        },
        {
            {"nuq family sheet families -o pictures.png", QT_TRANSLATE_NOOP("CommandTable", "all families of a folder")},
            {"nuq family sheet families --content drawings -o drawings.png", QT_TRANSLATE_NOOP("CommandTable", "their drawings")},
            {"nuq family sheet library/static/thumbnails --files 128.png -o thumbnails.png", QT_TRANSLATE_NOOP("CommandTable", "the thumbnails of a library")},
        },
    };
    // clang-format on
    return spec;
}

void FamilySheetCommand::Bind(OptionBinder& binder)
{
    binder.Argument("PATH", m_options.path);
    binder.Text("--output", m_options.output);
    binder.Text("--content", m_options.content);
    binder.Text("--files", m_options.files);
    binder.Number("--columns", m_options.columns, 1, 100);
    binder.Number("--size", m_options.size, 16, 512);
    binder.Switch("--dark", m_options.isDark);
}

void FamilySheetCommand::Check() const
{
    if (!m_options.output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        throw UsageError(Say(QT_TRANSLATE_NOOP(
            "Messages", "The command \"family sheet\" needs --output with a file that ends in .png.")));
    if (!m_options.files.isEmpty() && WantsDrawings())
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "--files and --content cannot be used together.")));
}

ExitCode FamilySheetCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    const QStringList files = m_options.files.isEmpty() ? FamilyPaths(session, m_options.path, code)
                                                        : PictureFiles(m_options.path, m_options.files);
    if (code != ExitCode::Done)
        return code;
    if (files.isEmpty()) {
        return session.Fail(ExitCode::NotFound, "family.none-in-folder",
            Say(QT_TRANSLATE_NOOP("Messages", "There are no files %1 in the folder %2."))
                .arg(m_options.files, m_options.path));
    }
    SheetPictures pictures;
    familyfiles::Reason reason;
    const bool isDone = !m_options.files.isEmpty() ? AddPictureFiles(files, pictures, reason)
                        : WantsDrawings()          ? AddDrawings(session, files, m_options.size, pictures, reason)
                                          : AddShadedPictures(session, files, m_options.size, pictures, reason);
    if (!isDone)
        return FailWith(session, reason);
    componentlibrary::ContactSheet sheet;
    sheet.columns = m_options.columns > 0 ? m_options.columns : WantsDrawings() ? 6 : 8;
    sheet.cell = m_options.size;
    sheet.isDark = m_options.isDark;
    WrittenFiles written(session);
    return written.Write(m_options.output, sheet.Draw(pictures)) ? written.Tell() : written.Code();
}

} // namespace nuq
