#include "Requests/RequestBase.h"

#include "Errors/AddressText.h"
#include "Requests/HttpChannel.h"
#include "Requests/ReplyDiagnosis.h"
#include "Requests/RetryAfter.h"

#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QHostAddress>
#include <QNetworkRequest>
#include <QSslSocket>

#include <algorithm>

namespace componentlibrary {
namespace {

constexpr int kLongestRedirectChain = 5;

bool IsSameOrigin(const QUrl& one, const QUrl& other)
{
    const auto port = [](const QUrl& url) { return url.port(url.scheme() == QLatin1String("https") ? 443 : 80); };
    return one.scheme() == other.scheme() && one.host() == other.host() && port(one) == port(other);
}

bool IsRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool IsLoopback(const QUrl& url)
{
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
}

/// These lists exist on every service: a plain "not found" for them comes from something else at that address.
bool IsForeign(const ErrorInfo& error, Operation operation)
{
    const bool isAlwaysThere = operation == Operation::LoadCategories || operation == Operation::LoadProjects ||
                               operation == Operation::LoadMappings;
    const bool isEnvelope = !error.serverCode.isEmpty() || !error.serverMessage.isEmpty();
    return error.code == ErrorCode::NotFound && isAlwaysThere && !isEnvelope;
}

bool MayFollow(const QUrl& from, const QUrl& to)
{
    const bool isWeb = to.scheme() == QLatin1String("http") || to.scheme() == QLatin1String("https");
    const bool losesTls = from.scheme() == QLatin1String("https") && to.scheme() != QLatin1String("https");
    return to.isValid() && !to.host().isEmpty() && isWeb && !losesTls;
}

} // namespace

RequestBase::RequestBase(HttpChannel& channel, Operation operation, const QUrl& address, QObject* parent)
    : QObject(parent), m_channel(&channel), m_operation(operation), m_address(address), m_target(address)
{
    m_timeLimit.setSingleShot(true);
    m_retry.setSingleShot(true);
    m_retry.setTimerType(Qt::PreciseTimer);
    connect(&m_timeLimit, &QTimer::timeout, this, &RequestBase::OnTimeLimit);
    connect(&m_retry, &QTimer::timeout, this, &RequestBase::EnterQueue);
    connect(&channel, &HttpChannel::Closing, this, &RequestBase::Cancel);
}

RequestBase::~RequestBase()
{
    DropReply();
}

void RequestBase::Start()
{
    if (m_state != State::Idle)
        return;
    m_state = State::Waiting;
    QTimer::singleShot(0, this, &RequestBase::Begin);
}

void RequestBase::Cancel()
{
    if (HasEnded())
        return;
    End(MakeError(ErrorCode::Cancelled));
}

std::optional<qint64> RequestBase::ClockDifference() const
{
    const QDateTime serverTime = HttpDate(m_dateHeader);
    if (!serverTime.isValid())
        return std::nullopt;
    return m_answeredAt.secsTo(serverTime);
}

QByteArray RequestBase::Accept() const
{
    return "application/json";
}

bool RequestBase::IsAuthorized() const
{
    return true;
}

qint64 RequestBase::LargestBody() const
{
    return m_channel->Settings().largestBody;
}

ErrorInfo RequestBase::MakeError(ErrorCode code) const
{
    ErrorInfo error;
    error.code = code;
    error.operation = m_operation;
    error.address = AddressText(m_address);
    error.tries = m_tries;
    error.request = m_number;
    return error;
}

void RequestBase::Begin()
{
    if (HasEnded())
        return;
    if (m_channel->Settings().isOffline)
        return End(MakeError(ErrorCode::Offline));
    if (m_refusal != ErrorCode::None)
        return End(MakeError(m_refusal));
    if (m_address.scheme() == QLatin1String("https") && !QSslSocket::supportsSsl())
        return End(MakeError(ErrorCode::TlsMissing));
    EnterQueue();
}

void RequestBase::EnterQueue()
{
    m_ticket = m_channel->Queue().Enter(m_target, [this] { Send(); });
}

QNetworkRequest RequestBase::MakeNetworkRequest() const
{
    const ChannelSettings& settings = m_channel->Settings();
    QNetworkRequest request(m_target);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setRawHeader("Accept", Accept());
    request.setRawHeader("Accept-Language", settings.language);
    if (AsksPlainly())
        request.setRawHeader("Accept-Encoding", "identity");
    if (IsAuthorized() && IsSameOrigin(m_address, m_target))
        settings.authorize(request);
    return request;
}

void RequestBase::Send()
{
    m_state = State::Running;
    ++m_tries;
    m_tlsErrors.clear();
    m_received = 0;
    if (m_number == 0)
        m_number = m_channel->TakeNumber();
    LogStart();
    m_sinceSent.start();
    Connect(m_channel->Manager().get(MakeNetworkRequest()));
    m_timeLimit.start(m_channel->Settings().timeLimit);
}

void RequestBase::Connect(QNetworkReply* reply)
{
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, &RequestBase::OnReplyFinished);
    connect(reply, &QNetworkReply::downloadProgress, this, &RequestBase::OnProgress);
    connect(reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) { m_tlsErrors = errors; });
}

void RequestBase::OnProgress(qint64 received, qint64 total)
{
    if (received > LargestBody() || total > LargestBody())
        return End(MakeError(ErrorCode::ServerTooLarge));
    m_received = received;
    emit Progressed(received, total);
}

void RequestBase::OnTimeLimit()
{
    End(MakeError(ErrorCode::NetworkTimeout));
}

void RequestBase::OnReplyFinished()
{
    m_timeLimit.stop();
    m_ticket.Release();
    if (m_reply == nullptr)
        return;
    m_dateHeader = m_reply->rawHeader("Date");
    m_answeredAt = QDateTime::currentDateTimeUtc();
    LogEnd();
    Judge(*m_reply);
}

void RequestBase::Judge(QNetworkReply& reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply.error() == QNetworkReply::NoError && IsRedirect(status))
        return FollowRedirect(reply);
    ErrorInfo error = DiagnoseReply(reply, m_tlsErrors);
    if (!error.IsError())
        error = ReadResult(reply);
    if (AskPlainly(error, reply))
        return;
    if (IsForeign(error, m_operation))
        error.code = ErrorCode::ServerUnexpectedStatus;
    error.operation = m_operation;
    error.address = AddressText(m_target);
    error.tries = m_tries;
    error.request = m_number;
    if (IsPassing(error) && RetryLater(error))
        return;
    End(std::move(error));
}

void RequestBase::FollowRedirect(const QNetworkReply& reply)
{
    const QByteArray location = reply.rawHeader("Location").trimmed();
    const QUrl target = m_target.resolved(QUrl::fromEncoded(location, QUrl::StrictMode));
    if (location.isEmpty() || !MayFollow(m_target, target)) {
        ErrorInfo error = MakeError(ErrorCode::ServerRedirectRefused);
        error.httpStatus = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        return End(std::move(error));
    }
    if (++m_redirects > kLongestRedirectChain)
        return End(MakeError(ErrorCode::ServerRedirectLoop));
    DropReply();
    m_target = target;
    m_state = State::Waiting;
    --m_tries; // a redirect answered the question where to ask; it is no failed try
    EnterQueue();
}

bool RequestBase::AsksPlainly() const
{
    return m_wantsPlain || !m_channel->Settings().isPacked || IsLoopback(m_target);
}

/// Qt forgets the length of a compressed answer, so one that was cut off looks like one that makes no sense, or like
/// an empty one. Asked for plainly it shows what it is.
bool RequestBase::AskPlainly(const ErrorInfo& error, const QNetworkReply& reply)
{
    const bool mayBeCut = error.code == ErrorCode::ServerNotJson || error.code == ErrorCode::ServerEmptyAnswer;
    const bool wasPacked = !AsksPlainly() && !reply.rawHeader("Content-Encoding").isEmpty();
    if (!mayBeCut || !wasPacked || m_tries >= m_channel->Settings().retry.tries)
        return false;
    m_wantsPlain = true;
    AskAgain(0);
    return true;
}

void RequestBase::AskAgain(int wait)
{
    DropReply();
    m_state = State::Waiting;
    m_redirects = 0;
    m_target = m_address;
    m_retry.start(wait);
    emit Retrying(m_tries + 1, wait);
}

bool RequestBase::RetryLater(const ErrorInfo& error)
{
    const ChannelSettings& settings = m_channel->Settings();
    if (m_tries >= settings.retry.tries)
        return false;
    qint64 wait = settings.retry.DelayBefore(m_tries + 1, settings.dice());
    if (error.retryAt.isValid())
        wait = std::max(wait, QDateTime::currentDateTimeUtc().msecsTo(error.retryAt) + 1);
    if (wait > settings.retry.longestPromise)
        return false;
    AskAgain(static_cast<int>(wait));
    return true;
}

void RequestBase::LogStart() const
{
    const QString text = QStringLiteral("request %1: GET %2, try %3")
                             .arg(QString::number(m_number), AddressText(m_target), QString::number(m_tries));
    tarnnuq::INuqLogger::Get()->Info(tarnnuq::NuqLogObject(text));
}

void RequestBase::LogEnd() const
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    QString text = QStringLiteral("request %1: status %2, %3 bytes, %4 ms")
                       .arg(QString::number(m_number), QString::number(status), QString::number(m_received),
                           QString::number(m_sinceSent.elapsed()));
    if (m_reply->error() == QNetworkReply::NoError)
        return tarnnuq::INuqLogger::Get()->Info(tarnnuq::NuqLogObject(text));
    text += QStringLiteral(", ") + m_reply->errorString().replace(m_target.toString(), AddressText(m_target));
    tarnnuq::INuqLogger::Get()->Error(tarnnuq::NuqLogObject(text));
}

void RequestBase::DropReply()
{
    QNetworkReply* reply = m_reply;
    m_reply = nullptr;
    if (reply == nullptr)
        return;
    reply->disconnect(this);
    if (reply->isRunning())
        reply->abort();
    reply->deleteLater();
}

void RequestBase::End(ErrorInfo error)
{
    if (HasEnded())
        return;
    m_timeLimit.stop();
    m_retry.stop();
    m_ticket.Release();
    DropReply();
    m_error = std::move(error);
    if (!m_error.IsError())
        m_state = State::Succeeded;
    else
        m_state = m_error.code == ErrorCode::Cancelled ? State::Cancelled : State::Failed;
    emit Finished();
}

} // namespace componentlibrary
