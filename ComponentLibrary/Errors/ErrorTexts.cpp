#include "Errors/ErrorTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QUrl>

#include <array>

namespace componentlibrary {
namespace {

struct ErrorKind
{
    ErrorCode code;
    const char* id;
    ErrorGroup group;
    const char* sentence;
    const char* hint;
};

// clang-format off
constexpr std::array<ErrorKind, 37> kKinds = {{
    {ErrorCode::Cancelled, "cancelled", ErrorGroup::Cancelled,
        QT_TRANSLATE_NOOP("ErrorTexts", "It was cancelled."),
        ""},
    {ErrorCode::Offline, "offline", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The program works offline and opens no connection."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Switch offline mode off to ask the server.")},
    {ErrorCode::ConfigurationNoEndpoint, "configuration.no_endpoint", ErrorGroup::General,
        QT_TRANSLATE_NOOP("ErrorTexts", "No server address is configured for the current environment."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the environment name and the environment files in the application folder; \"nuq doctor\" checks them one by one.")},
    {ErrorCode::ConfigurationBadEndpoint, "configuration.bad_endpoint", ErrorGroup::General,
        QT_TRANSLATE_NOOP("ErrorTexts", "The configured server address is not an http or https address."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Correct the address in the environment files.")},
    {ErrorCode::NetworkRefused, "network.refused", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} refuses connections."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check that the server runs and that address and port are right.")},
    {ErrorCode::NetworkHostNotFound, "network.host_not_found", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The host name {host} cannot be found."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the spelling of the address and the network's name service.")},
    {ErrorCode::NetworkTimeout, "network.timeout", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} did not answer in time."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again, or allow more time.")},
    {ErrorCode::NetworkClosed, "network.closed", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} closed the connection before the answer was complete."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again; if it stays so, a proxy or firewall may be cutting the connection.")},
    {ErrorCode::NetworkUnreachable, "network.unreachable", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The network to {host} is not available."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the network connection of this computer.")},
    {ErrorCode::NetworkProxy, "network.proxy", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The proxy server on the way to {host} cannot be used."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the proxy settings of this computer (http_proxy, https_proxy, no_proxy).")},
    {ErrorCode::NetworkProxySignIn, "network.proxy_sign_in", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The proxy server on the way to {host} asks for a user name and a password."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Put user name and password into the proxy settings.")},
    {ErrorCode::NetworkFault, "network.fault", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The connection to {host} failed."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again; the details name the cause.")},
    {ErrorCode::TlsMissing, "network.tls_missing", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "This installation cannot make secure connections: its TLS library is missing."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Install OpenSSL (libssl) and start again.")},
    {ErrorCode::TlsSelfSigned, "network.tls_self_signed", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} shows a certificate that it has signed itself, so it cannot be verified."),
        QT_TRANSLATE_NOOP("ErrorTexts", "If the server is yours, add its certificate to the trusted ones (SSL_CERT_FILE).")},
    {ErrorCode::TlsExpired, "network.tls_expired", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The certificate of {host} has expired."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check this computer's clock; if it is right, the server needs a new certificate.")},
    {ErrorCode::TlsNotYetValid, "network.tls_not_yet_valid", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The certificate of {host} is not valid yet."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Most likely this computer's clock is slow: set it right.")},
    {ErrorCode::TlsWrongHost, "network.tls_wrong_host", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The certificate shown by {host} belongs to another host."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the address; use the name for which the certificate was made.")},
    {ErrorCode::TlsUntrusted, "network.tls_untrusted", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "The certificate of {host} comes from an authority that this computer does not know."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Add the authority's certificate to the trusted ones (SSL_CERT_FILE).")},
    {ErrorCode::TlsFault, "network.tls", ErrorGroup::Network,
        QT_TRANSLATE_NOOP("ErrorTexts", "No secure connection to {host} could be agreed on."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check that the address begins with the right one of http and https.")},
    {ErrorCode::AuthSignedOut, "auth.signed_out", ErrorGroup::Access,
        QT_TRANSLATE_NOOP("ErrorTexts", "You are not signed in, or your sign-in has expired."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Provide a valid token (NUQ_TOKEN or NUQ_TOKEN_FILE; NUQ_TOKEN_QA for the environment \"qa\").")},
    {ErrorCode::AuthForbidden, "auth.forbidden", ErrorGroup::Access,
        QT_TRANSLATE_NOOP("ErrorTexts", "You are signed in but not allowed to do this."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Ask the administrator of the project or of the service for permission.")},
    {ErrorCode::NotFound, "not_found", ErrorGroup::NotFound,
        QT_TRANSLATE_NOOP("ErrorTexts", "The server has nothing under this name."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the id or the code.")},
    {ErrorCode::ServerRateLimited, "server.rate_limited", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} accepts no more requests until {time}."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Wait until then and try again.")},
    {ErrorCode::ServerUnavailable, "server.unavailable", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} is not available at the moment."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again in a few minutes.")},
    {ErrorCode::ServerFault, "server.fault", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} reports a fault of its own (HTTP {status})."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again later; if it stays so, tell the operator of the server.")},
    {ErrorCode::ServerRejected, "server.rejected", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} rejected the request: {message}"),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the values that were given.")},
    {ErrorCode::ServerNotJson, "server.bad_answer", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} sent an answer that cannot be read; it is damaged or cut short."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again; if it stays so, tell the operator of the server.")},
    {ErrorCode::ServerHtmlPage, "server.html_page", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} sent a web page instead of data."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Open the address in a browser: a proxy or a network may ask for a sign-in first, or the address is wrong.")},
    {ErrorCode::ServerEmptyAnswer, "server.empty_answer", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} sent an answer without content."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again; if it stays so, check the server address.")},
    {ErrorCode::ServerPartialAnswer, "server.partial_answer", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} sent only a part of the answer."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Try again; a proxy on the way may be at fault.")},
    {ErrorCode::ServerUnexpectedStatus, "server.unexpected_status", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} answered with the unexpected status HTTP {status}."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the server address.")},
    {ErrorCode::ServerRedirectLoop, "server.redirect_loop", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} passes the request on without end."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the server address; a proxy or sign-in page may be at fault.")},
    {ErrorCode::ServerRedirectRefused, "server.redirect_refused", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} passes the request on to an address that must not be followed."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the server address; from https only https may be followed.")},
    {ErrorCode::ServerWrongShape, "server.wrong_shape", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} sent data of another form than this program understands."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Check the server address and whether this program is up to date.")},
    {ErrorCode::ServerIncompleteList, "server.incomplete_list", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "{host} announced more entries than it sent."),
        QT_TRANSLATE_NOOP("ErrorTexts", "List again; the catalogue may have changed meanwhile.")},
    {ErrorCode::ServerTooLarge, "server.too_large", ErrorGroup::Server,
        QT_TRANSLATE_NOOP("ErrorTexts", "The answer of {host} is larger than this program accepts."),
        QT_TRANSLATE_NOOP("ErrorTexts", "Ask for less at once, for example with a smaller page.")},
    {ErrorCode::InternalFault, "internal", ErrorGroup::General,
        QT_TRANSLATE_NOOP("ErrorTexts", "The program could not process the answer."),
        QT_TRANSLATE_NOOP("ErrorTexts", "This is a fault of the program: please report it with the details.")},
}};

constexpr std::array<const char*, 12> kFailures = {{
    QT_TRANSLATE_NOOP("ErrorTexts", "The categories could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The components could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The component could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "Whether the component is in the project could not be found out."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The specifications could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The specification could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The properties of the category could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The projects could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The legends could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The category mappings could not be loaded."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The service could not be checked."),
    QT_TRANSLATE_NOOP("ErrorTexts", "The picture could not be loaded."),
}};
// clang-format on

const ErrorKind* FindKind(ErrorCode code)
{
    for (const ErrorKind& kind : kKinds) {
        if (kind.code == code)
            return &kind;
    }
    return nullptr;
}

QString Translate(const char* text)
{
    return *text == '\0' ? QString() : QCoreApplication::translate("ErrorTexts", text);
}

QString HostText(const ErrorInfo& error)
{
    const QUrl url(error.address);
    if (url.host().isEmpty())
        return QCoreApplication::translate("ErrorTexts", "The server");
    const QString host = url.host().contains(QLatin1Char(':')) ? QStringLiteral("[%1]").arg(url.host()) : url.host();
    return url.port() < 0 ? host : QStringLiteral("%1:%2").arg(host).arg(url.port());
}

QString TimeText(const ErrorInfo& error)
{
    if (!error.retryAt.isValid())
        return QCoreApplication::translate("ErrorTexts", "some later time");
    const QDateTime moment = error.retryAt.toLocalTime();
    const bool isToday = moment.date() == QDate::currentDate();
    return moment.toString(isToday ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString MessageText(const ErrorInfo& error)
{
    if (!error.serverMessage.isEmpty())
        return error.serverMessage;
    return QCoreApplication::translate("ErrorTexts", "it gave no reason.");
}

/// One pass over the sentence, so that a text of the server that looks like a placeholder stays as it is.
QString Fill(const QString& sentence, const ErrorInfo& error)
{
    QString filled;
    int from = 0;
    for (int open = sentence.indexOf(QLatin1Char('{')); open >= 0; open = sentence.indexOf(QLatin1Char('{'), from)) {
        const int close = sentence.indexOf(QLatin1Char('}'), open);
        if (close < 0)
            break;
        filled += sentence.midRef(from, open - from);
        const QStringRef name = sentence.midRef(open + 1, close - open - 1);
        if (name == QLatin1String("host"))
            filled += HostText(error);
        else if (name == QLatin1String("time"))
            filled += TimeText(error);
        else if (name == QLatin1String("status"))
            filled += QString::number(error.httpStatus);
        else if (name == QLatin1String("message"))
            filled += MessageText(error);
        from = close + 1;
    }
    return filled + sentence.midRef(from);
}

} // namespace

QString ErrorId(ErrorCode code)
{
    const ErrorKind* kind = FindKind(code);
    return kind == nullptr ? QString() : QString::fromLatin1(kind->id);
}

ErrorGroup GroupOf(ErrorCode code)
{
    const ErrorKind* kind = FindKind(code);
    return kind == nullptr ? ErrorGroup::None : kind->group;
}

std::vector<ErrorCode> AllErrorCodes()
{
    std::vector<ErrorCode> codes;
    codes.reserve(kKinds.size());
    for (const ErrorKind& kind : kKinds)
        codes.push_back(kind.code);
    return codes;
}

QString ErrorSentence(const ErrorInfo& error)
{
    const ErrorKind* kind = FindKind(error.code);
    if (kind == nullptr)
        return QString();
    const QString failure = Translate(kFailures[static_cast<std::size_t>(error.operation)]);
    //: joins "what failed" and "why"; Chinese needs no blank between two sentences
    const QString joint = QCoreApplication::translate("ErrorTexts", "%1 %2", "what failed, then why");
    return joint.arg(failure, Fill(Translate(kind->sentence), error));
}

QString ErrorCause(const ErrorInfo& error)
{
    const ErrorKind* kind = FindKind(error.code);
    return kind == nullptr ? QString() : Fill(Translate(kind->sentence), error);
}

QString ServerRemark(const ErrorInfo& error)
{
    if (error.serverMessage.isEmpty() || error.code == ErrorCode::ServerRejected)
        return QString();
    return QCoreApplication::translate("ErrorTexts", "The server says: %1").arg(error.serverMessage);
}

QString ErrorHint(const ErrorInfo& error)
{
    const ErrorKind* kind = FindKind(error.code);
    return kind == nullptr ? QString() : Translate(kind->hint);
}

} // namespace componentlibrary
