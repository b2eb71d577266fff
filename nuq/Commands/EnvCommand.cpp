#include "Commands/EnvCommand.h"

#include "Commands/OriginText.h"
#include "Commands/Texts.h"
#include "EnvSvcs/EnvService.h"
#include "Errors/AddressText.h"
#include "Output/FieldList.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <QUrl>

namespace nuq {
namespace {

using standalone::HostDiagnosis;
using tarnnuq::EnvService;

/// What the environment files give, without secrets that somebody may have put into an address.
QString Address(const std::wstring& endPoint)
{
    const QString text = QString::fromStdWString(endPoint);
    const QUrl url(text);
    return url.userInfo().isEmpty() ? text : componentlibrary::AddressText(url);
}

std::string WithOrigin(const standalone::ResolvedSetting& setting)
{
    return VisibleText(setting.value + QStringLiteral("  (") + OriginText(setting) + QLatin1Char(')'));
}

std::string OrNone(const QString& text)
{
    return text.isEmpty() ? Title(QT_TRANSLATE_NOOP("Titles", "none")) : VisibleText(text);
}

void ShowFields(Session& session, const HostDiagnosis& diagnosis)
{
    FieldList fields;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Environment")), WithOrigin(diagnosis.environment));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Known environments")),
        OrNone(diagnosis.knownEnvironments.join(QStringLiteral(", "))));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Interface")), OrNone(Address(EnvService::GetPyxApiEndPoint())));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Static files")), OrNone(Address(EnvService::GetPyxStaticEndPoint())));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Structure")), OrNone(Address(EnvService::GetWabStructureEndPoint())));
    const auto& token = diagnosis.currentIsQa ? diagnosis.qaToken : diagnosis.productionToken;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Sign-in")), VisibleText(OriginText(token)));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Application folder")), WithOrigin(diagnosis.applicationFolder));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Settings file")), VisibleText(diagnosis.settingsFile));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Thumbnail folder")), VisibleText(diagnosis.thumbnailFolder));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Log file")), OrNone(diagnosis.logFile));
    session.Out().Write(fields.Text(session.Look()));
}

void WriteDocument(Session& session, const HostDiagnosis& diagnosis)
{
    const auto& token = diagnosis.currentIsQa ? diagnosis.qaToken : diagnosis.productionToken;
    JsonWriter json;
    json.BeginObject();
    json.Member("api", Address(EnvService::GetPyxApiEndPoint()));
    json.Member("applicationFolder", diagnosis.applicationFolder.value);
    json.Member("environment", diagnosis.environment.value);
    json.Key("knownEnvironments");
    json.BeginArray();
    for (const QString& name : diagnosis.knownEnvironments)
        json.Text(name);
    json.EndArray();
    json.Member("logFile", diagnosis.logFile);
    json.Member("mappedEnvironment", EnvService::GetPyxCurrentEnv());
    json.Member("schema", kSchema);
    json.Member("settingsFile", diagnosis.settingsFile);
    json.Member("signIn", token.Text());
    json.Member("static", Address(EnvService::GetPyxStaticEndPoint()));
    json.Member("structure", Address(EnvService::GetWabStructureEndPoint()));
    json.Member("thumbnailFolder", diagnosis.thumbnailFolder);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& EnvCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "env",
        QT_TRANSLATE_NOOP("CommandTable", "Show the environment: addresses, folders, where the sign-in comes from"),
        QT_TRANSLATE_NOOP("CommandTable", "Opens no connection and shows no token; \"nuq doctor\" checks what is shown here."),
        {},
        {},
        {
            {"nuq env", QT_TRANSLATE_NOOP("CommandTable", "the current environment")},
            {"nuq env --environment qa", QT_TRANSLATE_NOOP("CommandTable", "another one")},
        },
    };
    // clang-format on
    return spec;
}

void EnvCommand::Bind(OptionBinder&) {}

ExitCode EnvCommand::Run(Session& session)
{
    const HostDiagnosis diagnosis = session.Host().Diagnose();
    if (session.Options().json)
        WriteDocument(session, diagnosis);
    else
        ShowFields(session, diagnosis);
    if (EnvService::GetPyxApiEndPoint().empty())
        session.Note(Say(QT_TRANSLATE_NOOP(
            "Messages", "This environment has no address of the interface; \"nuq doctor\" says what to mend.")));
    return ExitCode::Done;
}

} // namespace nuq
