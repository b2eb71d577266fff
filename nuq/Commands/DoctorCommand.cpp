#include "Commands/DoctorCommand.h"

#include "Commands/OriginText.h"
#include "Commands/Texts.h"
#include "Diagnosis/ConfigurationCheck.h"
#include "Diagnosis/FolderCheck.h"
#include "Diagnosis/ServiceCheck.h"
#include "Output/VisibleText.h"
#include "Program/ErrorDocument.h"
#include "Program/Session.h"

#include <QDateTime>
#include <QEventLoop>
#include <QFileInfo>

namespace nuq {

using componentlibrary::Finding;
using componentlibrary::Findings;
using componentlibrary::ServiceCheck;
using componentlibrary::Verdict;
using standalone::HostDiagnosis;
using standalone::SettingsState;
using standalone::TokenOrigin;

namespace {

Finding ApplicationFolderFinding(const HostDiagnosis& diagnosis)
{
    const QString check = QStringLiteral("folder.application");
    const auto& folder = diagnosis.applicationFolder;
    const QString origin = OriginText(folder);
    const QString text = QStringLiteral("%1 (%2)").arg(folder.value, origin);
    if (diagnosis.applicationFolderExists)
        return {check, Verdict::Good, text, QString()};
    return {check, Verdict::Fault,
        Say(QT_TRANSLATE_NOOP("Messages", "The folder %1 (%2) does not exist.")).arg(folder.value, origin),
        Say(QT_TRANSLATE_NOOP("Messages", "Correct --app-dir or NUQ_APP_DIR, or install the program again."))};
}

Finding SettingsFinding(const HostDiagnosis& diagnosis)
{
    const QString check = QStringLiteral("settings");
    switch (diagnosis.settingsState) {
    case SettingsState::Missing:
        return {check, Verdict::Good,
            Say(QT_TRANSLATE_NOOP("Messages", "%1 (not there, defaults are used)")).arg(diagnosis.settingsFile),
            QString()};
    case SettingsState::Read:
        return {check, Verdict::Good, diagnosis.settingsFile, QString()};
    case SettingsState::SetAside:
        return {check, Verdict::Warning, diagnosis.settingsDetail,
            Say(QT_TRANSLATE_NOOP("Messages", "Copy what is worth keeping from the file that was set aside."))};
    case SettingsState::Damaged:
    case SettingsState::Unreadable:
        break;
    }
    return {check, Verdict::Fault, diagnosis.settingsDetail,
        Say(QT_TRANSLATE_NOOP("Messages", "Mend or remove the settings file."))};
}

Finding TokenFinding(const HostDiagnosis& diagnosis)
{
    const QString check = QStringLiteral("token");
    const TokenOrigin& token = diagnosis.currentIsQa ? diagnosis.qaToken : diagnosis.productionToken;
    if (token.kind == TokenOrigin::Kind::Refused)
        return {check, Verdict::Fault, token.reason,
            Say(QT_TRANSLATE_NOOP("Messages", "Mend that source of the token; no other one is asked."))};
    if (token.kind == TokenOrigin::Kind::None)
        return {check, Verdict::Fault, Say(QT_TRANSLATE_NOOP("Messages", "No token is set up for this environment.")),
            diagnosis.currentIsQa ? Say(QT_TRANSLATE_NOOP("Messages", "Set NUQ_TOKEN_QA or NUQ_TOKEN_QA_FILE."))
                                  : Say(QT_TRANSLATE_NOOP("Messages", "Set NUQ_TOKEN or NUQ_TOKEN_FILE."))};
    if (!token.reason.isEmpty())
        return {check, Verdict::Warning, OriginText(token),
            Say(QT_TRANSLATE_NOOP("Messages", "Let only yourself read the file (chmod 600)."))};
    return {check, Verdict::Good, OriginText(token), QString()};
}

Finding LogFinding(const HostDiagnosis& diagnosis)
{
    if (diagnosis.logFault.isEmpty())
        return componentlibrary::CheckFolder(QStringLiteral("folder.log"),
            diagnosis.logFile.isEmpty() ? diagnosis.folders.state : QFileInfo(diagnosis.logFile).path());
    return {QStringLiteral("folder.log"), Verdict::Fault, diagnosis.logFault,
        Say(QT_TRANSLATE_NOOP("Messages", "Check the rights of the folder and the space on its disk."))};
}

Findings CheckComputer(const HostDiagnosis& diagnosis)
{
    Findings findings;
    findings.push_back(ApplicationFolderFinding(diagnosis));
    findings.push_back(SettingsFinding(diagnosis));
    if (diagnosis.applicationFolderExists) {
        const Findings configuration = componentlibrary::CheckConfiguration(diagnosis.applicationFolder.value);
        findings.insert(findings.end(), configuration.begin(), configuration.end());
    }
    findings.push_back(TokenFinding(diagnosis));
    findings.push_back(LogFinding(diagnosis));
    findings.push_back(componentlibrary::CheckFolder(QStringLiteral("folder.cache"), diagnosis.thumbnailFolder));
    return findings;
}

/// A missing token is one fault: the refusal that follows from it is not a second one.
void ForgiveConsequences(Findings& findings)
{
    bool isTokenBad = false;
    for (Finding& finding : findings) {
        if (finding.check == QLatin1String("token"))
            isTokenBad = finding.verdict == Verdict::Fault;
        if (finding.check == QLatin1String("service.sign_in") && isTokenBad && finding.verdict == Verdict::Fault) {
            finding.verdict = Verdict::Skipped;
            finding.text = Say(QT_TRANSLATE_NOOP("Messages", "refused, because there is no usable token"));
            finding.hint.clear();
        }
    }
}

/// @return whether the check came to its end
bool CheckService(Session& session, Findings& findings)
{
    ServiceCheck check(session.Catalogue());
    ProgressLine progress(session.Error(), session.ShowsProgress());
    bool isInterrupted = false;
    QEventLoop loop;
    QObject::connect(&check, &ServiceCheck::Finished, &loop, &QEventLoop::quit);
    QObject::connect(&check, &ServiceCheck::Found, &loop,
        [&progress](const QString& name) { progress.Show(componentlibrary::CheckTitle(name)); });
    QObject::connect(&session.Interrupt(), &Interruption::Happened, &loop, [&] {
        isInterrupted = true;
        loop.quit();
    });
    check.Start();
    loop.exec();
    findings.insert(findings.end(), check.Result().begin(), check.Result().end());
    return !isInterrupted;
}

std::string Mark(const Style& style, Verdict verdict)
{
    switch (verdict) {
    case Verdict::Good:
        return style.Paint(Emphasis::Good, "✓");
    case Verdict::Warning:
        return style.Paint(Emphasis::Warning, "!");
    case Verdict::Fault:
        return style.Paint(Emphasis::Bad, "✗");
    case Verdict::Skipped:
        break;
    }
    return style.Paint(Emphasis::Quiet, "-");
}

QString Summary(const Findings& findings)
{
    int faults = 0;
    int warnings = 0;
    int skipped = 0;
    for (const Finding& finding : findings) {
        faults += finding.verdict == Verdict::Fault ? 1 : 0;
        warnings += finding.verdict == Verdict::Warning ? 1 : 0;
        skipped += finding.verdict == Verdict::Skipped ? 1 : 0;
    }
    if (faults + warnings + skipped == 0)
        return Say(QT_TRANSLATE_NOOP("Messages", "Everything is in order."));
    if (faults + warnings == 0)
        return Say(QT_TRANSLATE_NOOP("Messages", "What was checked is in order. Not checked: %1.")).arg(skipped);
    return Say(QT_TRANSLATE_NOOP("Messages", "Faults: %1. Warnings: %2.")).arg(faults).arg(warnings);
}

void ShowFindings(Session& session, const Findings& findings)
{
    Table table = session.MakeTable(
        {{""}, {Title(QT_TRANSLATE_NOOP("Titles", "CHECK"))}, {Title(QT_TRANSLATE_NOOP("Titles", "FOUND"))}});
    for (const Finding& finding : findings) {
        table.AddRow({Mark(session.Look(), finding.verdict), VisibleText(componentlibrary::CheckTitle(finding.check)),
            VisibleText(finding.text)});
        if (!finding.hint.isEmpty())
            table.AddRow({"", "", "→ " + VisibleText(finding.hint)});
    }
    session.Out().Write(table.Take());
    session.Out().Write("\n" + VisibleText(Summary(findings)) + "\n");
}

void WriteFindings(Session& session, const Findings& findings)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("checkedAt", QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    json.List("findings", findings, [](JsonWriter& list, const Finding& finding) {
        list.BeginObject();
        list.Member("check", finding.check);
        list.Member("hint", finding.hint);
        list.Member("milliseconds", static_cast<std::int64_t>(finding.milliseconds));
        list.Member("text", finding.text);
        list.Member("verdict", componentlibrary::VerdictId(finding.verdict));
        list.EndObject();
    });
    json.Member("isInOrder", !componentlibrary::HasFault(findings));
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& DoctorCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "doctor",
        QT_TRANSLATE_NOOP("CommandTable", "Check settings, addresses, network, sign-in and folders, and say what to mend"),
        QT_TRANSLATE_NOOP("CommandTable", "Ends with exit code 7 when a check found a fault. Nothing is changed on the server, and no secret is shown."),
        {},
        {},
        {
            {"nuq doctor", QT_TRANSLATE_NOOP("CommandTable", "one line a check")},
            {"nuq doctor --json > report.json", QT_TRANSLATE_NOOP("CommandTable", "for support")},
        },
    };
    // clang-format on
    return spec;
}

void DoctorCommand::Bind(OptionBinder&) {}

ExitCode DoctorCommand::Run(Session& session)
{
    Findings findings = CheckComputer(session.Host().Diagnose());
    if (!CheckService(session, findings)) {
        componentlibrary::ErrorInfo error;
        error.code = componentlibrary::ErrorCode::Cancelled;
        return session.Fail(error);
    }
    ForgiveConsequences(findings);
    if (session.Options().json)
        WriteFindings(session, findings);
    else
        ShowFindings(session, findings);
    return componentlibrary::HasFault(findings) ? ExitCode::Findings : ExitCode::Done;
}

} // namespace nuq
