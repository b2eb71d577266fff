#include "Commands/FamilyCheckCommand.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyChecker.h"
#include "Families/FamilyPaths.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <algorithm>

namespace nuq {
namespace {

using CheckedFamilies = std::vector<CheckedFamily>;

bool AreInOrder(const CheckedFamilies& families)
{
    return std::all_of(
        families.begin(), families.end(), [](const CheckedFamily& family) { return family.IsInOrder(); });
}

std::string Mark(const Style& style, bool isGood)
{
    return isGood ? style.Paint(Emphasis::Good, "✓") : style.Paint(Emphasis::Bad, "✗");
}

std::string Outcome(const Session& session, const familyfiles::Reason& reason)
{
    return reason ? VisibleText(SentenceOf(session, reason)) : Title(QT_TRANSLATE_NOOP("Titles", "yields a geometry"));
}

void AddRows(Table& table, const Session& session, const CheckedFamily& family)
{
    const std::string file = VisibleText(family.file.section(QLatin1Char('/'), -1));
    if (family.reason)
        table.AddRow({Mark(session.Look(), false), file, "", Outcome(session, family.reason)});
    for (const CheckedSpecification& result : family.results) {
        table.AddRow({Mark(session.Look(), result.yieldsGeometry), file,
            VisibleText(QString::fromStdString(result.name)), Outcome(session, result.reason)});
    }
}

QString Summary(const CheckedFamilies& families)
{
    int good = 0;
    int all = 0;
    for (const CheckedFamily& family : families) {
        all += static_cast<int>(family.results.size()) + (family.reason ? 1 : 0);
        for (const CheckedSpecification& result : family.results)
            good += result.yieldsGeometry ? 1 : 0;
    }
    return Say(QT_TRANSLATE_NOOP("Messages", "Specifications that yield a geometry: %1 of %2.")).arg(good).arg(all);
}

void Show(Session& session, const CheckedFamilies& families)
{
    Table table = session.MakeTable({{""}, {Title(QT_TRANSLATE_NOOP("Titles", "FILE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "SPECIFICATION"))}, {Title(QT_TRANSLATE_NOOP("Titles", "FOUND"))}});
    for (const CheckedFamily& family : families)
        AddRows(table, session, family);
    session.Out().Write(table.Take());
    // One specification is worth a look at its values.
    if (families.size() == 1 && families.front().results.size() == 1) {
        session.Out().Write("\n");
        ShowValues(session, families.front().results.front().values);
    }
    session.Out().Write("\n" + VisibleText(Summary(families)) + "\n");
}

void WriteDocument(Session& session, const CheckedFamilies& families)
{
    JsonWriter json;
    json.BeginObject();
    json.List("families", families, [&session](JsonWriter& list, const CheckedFamily& family) {
        list.BeginObject();
        list.Member("file", family.file);
        list.Member("isInOrder", family.IsInOrder());
        list.Member("name", family.name);
        list.Key("reason");
        WriteReason(list, session, family.reason);
        list.List("results", family.results,
            [&session](JsonWriter& results, const CheckedSpecification& one) { WriteChecked(results, session, one); });
        list.EndObject();
    });
    json.Member("isInOrder", AreInOrder(families));
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& FamilyCheckCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family check",
        QT_TRANSLATE_NOOP("CommandTable", "Check whether specifications yield a geometry, and say why not"),
        QT_TRANSLATE_NOOP("CommandTable", "A copy of the family file is asked, which is removed afterwards. Ends with exit code 7 when a specification yields no geometry or a file cannot be used."),
        {{"PATH", QT_TRANSLATE_NOOP("CommandTable", "The family file, or a folder with family files")}},
        {
            {"--specification", "-s", "NAME|FILE", QT_TRANSLATE_NOOP("CommandTable", "A type of the family, or a JSON file with specifications; by default all types of the family")},
        },
        {
            {"nuq family check gate-valve.nuqfamily", QT_TRANSLATE_NOOP("CommandTable", "all types of a family")},
            {"nuq family check gate-valve.nuqfamily --specification DN50", QT_TRANSLATE_NOOP("CommandTable", "one of them, with its values")},
            {"nuq specifications ID --json > wanted.json && nuq family check gate-valve.nuqfamily -s wanted.json", QT_TRANSLATE_NOOP("CommandTable", "what the catalogue offers")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyCheckCommand::Bind(OptionBinder& binder)
{
    binder.Argument("PATH", m_options.path);
    binder.Text("--specification", m_options.specification);
}

ExitCode FamilyCheckCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    CheckedFamilies families;
    for (const QString& file : FamilyPaths(session, m_options.path, code)) {
        auto family = CheckFamily(session, file, m_options.specification, code);
        if (!family)
            return code;
        if (Interruption::HasHappened() || family->reason.code == "file.not-found")
            return FailWith(session, family->reason);
        families.push_back(std::move(*family));
    }
    if (code != ExitCode::Done)
        return code;
    if (session.Options().json)
        WriteDocument(session, families);
    else
        Show(session, families);
    return AreInOrder(families) ? ExitCode::Done : ExitCode::Findings;
}

} // namespace nuq
