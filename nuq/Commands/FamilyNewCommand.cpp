#include "Commands/FamilyNewCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyDescription.h"
#include "Families/InterruptibleBuild.h"
#include "Families/WrittenFiles.h"
#include "FamilyFiles/FamilyCompletion.h"
#include "FamilyFiles/FamilyFileWriter.h"
#include "Program/Session.h"

#include <QFile>
#include <QFileInfo>

namespace nuq {

using familyfiles::FamilyFileContent;
using familyfiles::FamilyManifest;
using familyfiles::FamilyModel;
using familyfiles::Reason;

namespace {

/// A family with a type that cannot be built is not made.
bool BuildsAllTypes(const FamilyManifest& manifest, InterruptibleBuild& progress, Reason& reason)
{
    const auto model = FamilyModel::Make(manifest, reason);
    if (!model)
        return false;
    for (std::size_t type = 0; type < manifest.types.size(); ++type) {
        progress.SetSubject(QString::fromStdString(manifest.types[type].name));
        const auto values = model->TypeValues(type, reason);
        if (!values)
            return false;
        // The first one is built when the file is made.
        if (type == 0 || manifest.geometry.empty())
            continue;
        familyfiles::BuildResult built = model->Build(*values, &progress);
        if (!built.solid) {
            reason = std::move(built.reason);
            return false;
        }
    }
    return true;
}

} // namespace

const CommandSpec& FamilyNewCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family new",
        QT_TRANSLATE_NOOP("CommandTable", "Make a family file from its description: parameters, types, recipe"),
        QT_TRANSLATE_NOOP("CommandTable", "The description is JSON. Formulas, recipe and every type are checked, the geometry is built, pictures and drawings are made. docs/family-files.md describes all of it and has a tutorial."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The description, *.json")}},
        {
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file to write, *.nuqfamily")},
            {"--force", "-f", "", QT_TRANSLATE_NOOP("CommandTable", "Replace a file that is there already")},
        },
        {
            {"nuq family new valve.json -o valve.nuqfamily", QT_TRANSLATE_NOOP("CommandTable", "a new family")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyNewCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.description);
    binder.Text("--output", m_options.output);
    binder.Switch("--force", m_options.force);
}

void FamilyNewCommand::Check() const
{
    if (!m_options.output.endsWith(QLatin1String(".nuqfamily")))
        throw UsageError(Say(QT_TRANSLATE_NOOP(
            "Messages", "The command \"family new\" needs --output with a file that ends in .nuqfamily.")));
}

std::optional<FamilyManifest> FamilyNewCommand::Description(Session& session, ExitCode& code) const
{
    QFile file(m_options.description);
    if (!file.open(QIODevice::ReadOnly)) {
        code = session.Fail(file.exists() ? ExitCode::Failed : ExitCode::NotFound, "family.description-unreadable",
            Say(QT_TRANSLATE_NOOP("Messages", "The description %1 cannot be read: %2."))
                .arg(m_options.description, file.errorString()));
        return std::nullopt;
    }
    Reason reason;
    auto manifest = ReadDescription(file.readAll(), reason);
    if (!manifest)
        code = FailWith(session, reason);
    return manifest;
}

ExitCode FamilyNewCommand::Run(Session& session)
{
    if (!m_options.force && QFileInfo::exists(m_options.output)) {
        return session.Fail(ExitCode::Failed, "family.file.exists",
            Say(QT_TRANSLATE_NOOP("Messages", "The file %1 is there already.")).arg(m_options.output),
            Say(QT_TRANSLATE_NOOP("Messages", "Choose another name, or replace it with --force.")));
    }
    ExitCode code = ExitCode::Done;
    const auto manifest = Description(session, code);
    if (!manifest)
        return code;
    Reason reason;
    InterruptibleBuild progress(session);
    std::optional<FamilyFileContent> content;
    if (BuildsAllTypes(*manifest, progress, reason))
        content = familyfiles::CompleteFamily(*manifest, reason, &progress);
    progress.Clear();
    if (!content || !familyfiles::FamilyFileWriter::Write(m_options.output.toStdString(), *content, reason))
        return FailWith(session, reason);
    WrittenFiles files(session);
    files.Add(m_options.output);
    return files.Tell();
}

} // namespace nuq
