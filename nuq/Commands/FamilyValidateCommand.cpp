#include "Commands/FamilyValidateCommand.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyPaths.h"
#include "Families/FamilyValidation.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <algorithm>

namespace nuq {

using componentlibrary::Verdict;

namespace {

using ValidatedFamilies = std::vector<ValidatedFamily>;

bool HaveFault(const ValidatedFamilies& families)
{
    return std::any_of(
        families.begin(), families.end(), [](const ValidatedFamily& family) { return family.HasFault(); });
}

std::string Mark(const Style& style, Verdict verdict)
{
    if (verdict == Verdict::Good)
        return style.Paint(Emphasis::Good, "✓");
    return verdict == Verdict::Warning ? style.Paint(Emphasis::Warning, "!") : style.Paint(Emphasis::Bad, "✗");
}

std::string CheckName(const std::string& check)
{
    static const std::pair<const char*, const char*> names[] = {{"file", QT_TRANSLATE_NOOP("Titles", "file")},
        {"formulas", QT_TRANSLATE_NOOP("Titles", "formulas")}, {"types", QT_TRANSLATE_NOOP("Titles", "types")},
        {"recipe", QT_TRANSLATE_NOOP("Titles", "recipe")}, {"geometry", QT_TRANSLATE_NOOP("Titles", "geometry")},
        {"record", QT_TRANSLATE_NOOP("Titles", "record")}, {"pictures", QT_TRANSLATE_NOOP("Titles", "pictures")}};
    const auto found =
        std::find_if(std::begin(names), std::end(names), [&check](const auto& row) { return check == row.first; });
    return found == std::end(names) ? check : Title(found->second);
}

int CountOf(const ValidatedFamilies& families, Verdict verdict)
{
    int count = 0;
    for (const ValidatedFamily& family : families) {
        for (const FamilyFinding& finding : family.findings)
            count += finding.verdict == verdict ? 1 : 0;
    }
    return count;
}

QString Summary(const ValidatedFamilies& families)
{
    const int faults = CountOf(families, Verdict::Fault);
    const int warnings = CountOf(families, Verdict::Warning);
    if (faults + warnings == 0)
        return Say(QT_TRANSLATE_NOOP("Messages", "Everything is in order."));
    return Say(QT_TRANSLATE_NOOP("Messages", "Faults: %1. Warnings: %2.")).arg(faults).arg(warnings);
}

void Show(Session& session, const ValidatedFamilies& families)
{
    Table table = session.MakeTable({{""}, {Title(QT_TRANSLATE_NOOP("Titles", "FILE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "CHECK"))}, {Title(QT_TRANSLATE_NOOP("Titles", "FOUND"))}});
    for (const ValidatedFamily& family : families) {
        const std::string file = VisibleText(family.file.section(QLatin1Char('/'), -1));
        for (const FamilyFinding& finding : family.findings)
            table.AddRow(
                {Mark(session.Look(), finding.verdict), file, CheckName(finding.check), VisibleText(finding.text)});
    }
    session.Out().Write(table.Take());
    session.Out().Write("\n" + VisibleText(Summary(families)) + "\n");
}

void WriteFinding(JsonWriter& json, const FamilyFinding& finding)
{
    json.BeginObject();
    json.Member("check", finding.check);
    json.Member("code", finding.reason.code);
    json.Member("subject", finding.reason.subject);
    json.Member("text", finding.text);
    json.Member("verdict", componentlibrary::VerdictId(finding.verdict));
    json.EndObject();
}

void WriteDocument(Session& session, const ValidatedFamilies& families)
{
    JsonWriter json;
    json.BeginObject();
    json.List("families", families, [](JsonWriter& list, const ValidatedFamily& family) {
        list.BeginObject();
        list.Member("file", family.file);
        list.List("findings", family.findings, WriteFinding);
        list.Member("isInOrder", !family.HasFault());
        list.EndObject();
    });
    json.Member("isInOrder", !HaveFault(families));
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

bool IsMissing(const ValidatedFamily& family)
{
    return family.findings.front().reason.code == "file.not-found";
}

} // namespace

const CommandSpec& FamilyValidateCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family validate",
        QT_TRANSLATE_NOOP("CommandTable", "Check family files through and through"),
        QT_TRANSLATE_NOOP("CommandTable", "The container, the manifest, formulas, the values of every type, the recipe, the geometry of every type, pictures and drawings. Ends with exit code 7 when a check found a fault."),
        {{"PATH", QT_TRANSLATE_NOOP("CommandTable", "The family file, or a folder with family files")}},
        {
            {"--quick", "", "", QT_TRANSLATE_NOOP("CommandTable", "Build no geometry")},
        },
        {
            {"nuq family validate gate-valve.nuqfamily", QT_TRANSLATE_NOOP("CommandTable", "one file")},
            {"nuq family validate families --quick", QT_TRANSLATE_NOOP("CommandTable", "all files of a folder, without their geometry")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyValidateCommand::Bind(OptionBinder& binder)
{
    binder.Argument("PATH", m_options.path);
    binder.Switch("--quick", m_options.quick);
}

ExitCode FamilyValidateCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    ValidatedFamilies families;
    for (const QString& file : FamilyPaths(session, m_options.path, code)) {
        families.push_back(ValidateFamily(session, file, m_options.quick));
        if (Interruption::HasHappened() || IsMissing(families.back()))
            return FailWith(session, families.back().findings.front().reason);
    }
    if (code != ExitCode::Done)
        return code;
    if (session.Options().json)
        WriteDocument(session, families);
    else
        Show(session, families);
    return HaveFault(families) ? ExitCode::Findings : ExitCode::Done;
}

} // namespace nuq
