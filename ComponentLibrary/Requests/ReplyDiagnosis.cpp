#include "Requests/ReplyDiagnosis.h"

#include "Errors/AddressText.h"
#include "Requests/RetryAfter.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <QSslCertificate>

#include <array>

namespace componentlibrary {
namespace {

constexpr qint64 kLargestErrorBody = qint64{64} << 10;
constexpr int kLongestMessage = 1000;

struct NetworkCause
{
    QNetworkReply::NetworkError error;
    ErrorCode code;
};

constexpr std::array<NetworkCause, 15> kNetworkCauses = {{
    {QNetworkReply::ConnectionRefusedError, ErrorCode::NetworkRefused},
    {QNetworkReply::RemoteHostClosedError, ErrorCode::NetworkClosed},
    {QNetworkReply::HostNotFoundError, ErrorCode::NetworkHostNotFound},
    {QNetworkReply::TimeoutError, ErrorCode::NetworkTimeout},
    {QNetworkReply::OperationCanceledError, ErrorCode::NetworkTimeout},
    {QNetworkReply::SslHandshakeFailedError, ErrorCode::TlsFault},
    {QNetworkReply::TemporaryNetworkFailureError, ErrorCode::NetworkUnreachable},
    {QNetworkReply::NetworkSessionFailedError, ErrorCode::NetworkUnreachable},
    {QNetworkReply::ProxyConnectionRefusedError, ErrorCode::NetworkProxy},
    {QNetworkReply::ProxyConnectionClosedError, ErrorCode::NetworkProxy},
    {QNetworkReply::ProxyNotFoundError, ErrorCode::NetworkProxy},
    {QNetworkReply::ProxyTimeoutError, ErrorCode::NetworkProxy},
    {QNetworkReply::UnknownProxyError, ErrorCode::NetworkProxy},
    {QNetworkReply::ProxyAuthenticationRequiredError, ErrorCode::NetworkProxySignIn},
    {QNetworkReply::ProtocolFailure, ErrorCode::ServerNotJson},
}};

ErrorCode TlsCause(QSslError::SslError error)
{
    switch (error) {
    case QSslError::CertificateExpired:
        return ErrorCode::TlsExpired;
    case QSslError::CertificateNotYetValid:
        return ErrorCode::TlsNotYetValid;
    case QSslError::HostNameMismatch:
        return ErrorCode::TlsWrongHost;
    case QSslError::SelfSignedCertificate:
        return ErrorCode::TlsSelfSigned;
    case QSslError::SelfSignedCertificateInChain:
    case QSslError::UnableToGetLocalIssuerCertificate:
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToVerifyFirstCertificate:
    case QSslError::CertificateUntrusted:
        return ErrorCode::TlsUntrusted;
    default:
        return ErrorCode::TlsFault;
    }
}

/// Dates and names first: they stay wrong when the issuer becomes trusted.
ErrorCode WorstTlsCause(const QList<QSslError>& errors)
{
    constexpr std::array<ErrorCode, 5> order = {ErrorCode::TlsNotYetValid, ErrorCode::TlsExpired,
        ErrorCode::TlsWrongHost, ErrorCode::TlsSelfSigned, ErrorCode::TlsUntrusted};
    for (const ErrorCode cause : order) {
        for (const QSslError& error : errors) {
            if (TlsCause(error.error()) == cause)
                return cause;
        }
    }
    return ErrorCode::TlsFault;
}

QStringList TlsEvidence(const QList<QSslError>& errors)
{
    QStringList lines;
    for (const QSslError& error : errors) {
        lines << error.errorString();
        const QSslCertificate certificate = error.certificate();
        if (certificate.isNull())
            continue;
        lines << QStringLiteral("subject: %1").arg(certificate.subjectDisplayName())
              << QStringLiteral("issuer: %1").arg(certificate.issuerDisplayName())
              << QStringLiteral("valid: %1 to %2")
                     .arg(certificate.effectiveDate().toUTC().toString(Qt::ISODate),
                         certificate.expiryDate().toUTC().toString(Qt::ISODate));
    }
    lines.removeDuplicates();
    return lines;
}

ErrorCode StatusCause(int status)
{
    switch (status) {
    case 401:
        return ErrorCode::AuthSignedOut;
    case 403:
        return ErrorCode::AuthForbidden;
    case 404:
    case 410:
        return ErrorCode::NotFound;
    case 407:
        return ErrorCode::NetworkProxySignIn;
    case 429:
        return ErrorCode::ServerRateLimited;
    case 502:
    case 503:
    case 504:
        return ErrorCode::ServerUnavailable;
    default:
        return status >= 500 ? ErrorCode::ServerFault : ErrorCode::ServerRejected;
    }
}

ErrorCode NetworkCauseOf(const QNetworkReply& reply, const QList<QSslError>& tlsErrors)
{
    if (reply.error() == QNetworkReply::SslHandshakeFailedError && !tlsErrors.isEmpty())
        return WorstTlsCause(tlsErrors);
    for (const NetworkCause& cause : kNetworkCauses) {
        if (cause.error == reply.error())
            return cause.code;
    }
    return ErrorCode::NetworkFault;
}

/// A refusal without the service's envelope comes from something else on the way and keeps only its status.
void ReadEnvelope(QNetworkReply& reply, ErrorInfo& error)
{
    const QByteArray body = reply.read(kLargestErrorBody);
    const QJsonObject envelope = QJsonDocument::fromJson(body).object();
    error.serverCode = envelope.value(QLatin1String("code")).toString().left(kLongestMessage);
    error.serverMessage = envelope.value(QLatin1String("message")).toString().left(kLongestMessage);
}

/// What the body looks like before any parser sees it; a parser would report all of these as the same syntax error.
ErrorCode BodyCause(QNetworkReply& reply)
{
    if (IsCutShort(reply, reply.bytesAvailable()))
        return ErrorCode::NetworkClosed;
    const QByteArray start = reply.peek(256).trimmed();
    if (start.isEmpty())
        return reply.bytesAvailable() == 0 ? ErrorCode::ServerEmptyAnswer : ErrorCode::ServerNotJson;
    if (start.startsWith('<'))
        return ErrorCode::ServerHtmlPage;
    if (start.startsWith('['))
        return ErrorCode::ServerWrongShape;
    return ErrorCode::None;
}

ErrorCode SuccessStatusCause(QNetworkReply& reply, int status)
{
    switch (status) {
    case 200:
        return BodyCause(reply);
    case 204:
    case 205:
        return ErrorCode::ServerEmptyAnswer;
    case 206:
        return ErrorCode::ServerPartialAnswer;
    default:
        return ErrorCode::ServerUnexpectedStatus;
    }
}

void AddEvidence(const QNetworkReply& reply, ErrorInfo& error)
{
    const QByteArray type = reply.rawHeader("Content-Type");
    if (!type.isEmpty())
        error.evidence << QStringLiteral("content type: %1").arg(QString::fromLatin1(type.left(200)));
}

} // namespace

ErrorInfo DiagnoseReply(QNetworkReply& reply, const QList<QSslError>& tlsErrors)
{
    ErrorInfo error;
    error.httpStatus = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isRefusal = error.httpStatus >= 400;
    if (isRefusal) {
        error.code = StatusCause(error.httpStatus);
        ReadEnvelope(reply, error);
    } else if (reply.error() != QNetworkReply::NoError) {
        error.code = NetworkCauseOf(reply, tlsErrors);
        error.evidence = TlsEvidence(tlsErrors);
    } else {
        error.code = SuccessStatusCause(reply, error.httpStatus);
    }
    if (!error.IsError())
        return error;
    if (reply.error() != QNetworkReply::NoError)
        error.original = reply.errorString().replace(reply.url().toString(), AddressText(reply.url()));
    if (error.httpStatus != 0)
        AddEvidence(reply, error);
    if (error.httpStatus == 429 || error.httpStatus == 503)
        error.retryAt =
            RetryMoment(reply.rawHeader("Retry-After"), reply.rawHeader("Date"), QDateTime::currentDateTimeUtc());
    return error;
}

ErrorInfo DiagnoseHandlerText(const QString& text)
{
    ErrorInfo error;
    error.httpStatus = 200;
    error.original = text;
    const QString prefix = QStringLiteral("internal request error: custom code - ");
    const QString divider = QStringLiteral(", message - ");
    if (!text.startsWith(prefix)) {
        error.code = ErrorCode::ServerNotJson;
        return error;
    }
    const int at = text.indexOf(divider, prefix.size());
    error.serverCode = text.mid(prefix.size(), at - prefix.size()).left(kLongestMessage);
    error.serverMessage = text.mid(at + divider.size()).left(kLongestMessage);
    // No code and no message: this is some other JSON, not a refusal by the service.
    const bool isEnvelope = !error.serverCode.isEmpty() || !error.serverMessage.isEmpty();
    error.code = isEnvelope ? ErrorCode::ServerRejected : ErrorCode::ServerWrongShape;
    return error;
}

bool IsCutShort(const QNetworkReply& reply, qint64 received)
{
    // Qt takes the length out where it unpacks the body.
    bool isNumber = false;
    const qint64 announced = reply.rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
    return isNumber && received < announced;
}

bool IsPassing(const ErrorInfo& error)
{
    switch (error.code) {
    case ErrorCode::NetworkRefused:
    case ErrorCode::NetworkClosed:
    case ErrorCode::NetworkUnreachable:
    case ErrorCode::NetworkFault:
    case ErrorCode::ServerRateLimited:
    case ErrorCode::ServerUnavailable:
        return true;
    default:
        return false;
    }
}

} // namespace componentlibrary
