#include "Commands/VersionCommand.h"

#include "Application/ProductVersion.h"
#include "Program/Session.h"

#include <QSslSocket>
#include <QSysInfo>

namespace nuq {
namespace {

void WriteVersions(Session& session)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("program", "nuq");
    json.Member("qt", qVersion());
    json.Member("schema", kSchema);
    json.Member("system", QSysInfo::prettyProductName());
    json.Member("tls", QSslSocket::sslLibraryVersionString());
    json.Member("version", standalone::ProductVersion());
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& VersionCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "version",
        QT_TRANSLATE_NOOP("CommandTable", "Show the versions of the program and of what it runs on"),
        "",
        {},
        {},
        {
            {"nuq version --json", QT_TRANSLATE_NOOP("CommandTable", "for a report")},
        },
    };
    // clang-format on
    return spec;
}

void VersionCommand::Bind(OptionBinder&) {}

ExitCode VersionCommand::Run(Session& session)
{
    if (session.Options().json) {
        WriteVersions(session);
        return ExitCode::Done;
    }
    session.Out().Write("nuq " + standalone::ProductVersion().toStdString() + "\nQt " + qVersion() + "\n" +
                        QSslSocket::sslLibraryVersionString().toStdString() + "\n" +
                        QSysInfo::prettyProductName().toStdString() + "\n");
    return ExitCode::Done;
}

} // namespace nuq
