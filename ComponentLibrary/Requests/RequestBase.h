#pragma once

#include "Errors/ErrorInfo.h"
#include "Requests/HostQueue.h"

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QSslError>
#include <QTimer>
#include <QUrl>

#include <optional>

class QNetworkRequest;

namespace componentlibrary {

class HttpChannel;

/**
 * One question to the catalogue service, from its start to its one end.
 *
 * Owned by whoever asked; delete it at any time, also inside its own signals by deleteLater(). It waits for a slot of
 * its channel, sends a GET, follows redirects (the Authorization header stays with the host first asked), repeats
 * itself after passing faults, and ends exactly once: with a result, with an error or cancelled. The end is never
 * announced inside Start(). A request is used once.
 */
class RequestBase : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Idle,      ///< not started
        Waiting,   ///< for a slot, or for the moment of the next try
        Running,   ///< handed to the network
        Succeeded, ///< ended with a result
        Failed,    ///< ended with an error
        Cancelled  ///< ended by Cancel() or because the channel went away; Error() says so too
    };

    ~RequestBase() override;

    /** Let the request end with this error without being sent, because no usable address exists. Before Start(). */
    void Refuse(ErrorCode reason) { m_refusal = reason; }

    /** Start; returns at once. A second call does nothing. */
    void Start();

    /** End now: the connection is dropped and Finished is emitted inside this call. Nothing once it has ended. */
    void Cancel();

    State CurrentState() const { return m_state; }
    bool HasEnded() const { return m_state >= State::Succeeded; }

    /** The error; ErrorCode::None before the end and after a success. */
    const ErrorInfo& Error() const { return m_error; }

    /** The address asked, before any redirect. */
    const QUrl& Address() const { return m_address; }

    /**
     * How many seconds the server's clock is ahead of this computer's, by the Date header of the last answer;
     * nothing before an answer with such a header.
     */
    std::optional<qint64> ClockDifference() const;

signals:
    /** The one end; the state and either the result or the error are set. */
    void Finished();

    /** Bytes of the body so far, and all of them; -1 when the server did not say. */
    void Progressed(qint64 received, qint64 total);

    /**
     * A passing fault: the request is sent again.
     * @param next         number of the next try, from 2
     * @param milliseconds wait before it
     */
    void Retrying(int next, int milliseconds);

protected:
    /** @param address may be invalid when Refuse() is called too */
    RequestBase(HttpChannel& channel, Operation operation, const QUrl& address, QObject* parent);

    /**
     * Turn a finished answer of status 200 into the result.
     * @return an error, or one with ErrorCode::None when there is a result
     */
    virtual ErrorInfo ReadResult(QNetworkReply& reply) = 0;

    /** The media types that are asked for. */
    virtual QByteArray Accept() const;

    /** Whether the request carries the Authorization header. */
    virtual bool IsAuthorized() const;

    /** Bytes of the longest body, after decompression, that is taken. */
    virtual qint64 LargestBody() const;

    /** An error of this request with its address, operation and number of tries filled in. */
    ErrorInfo MakeError(ErrorCode code) const;

private:
    void Begin();
    void EnterQueue();
    void Send();
    void Connect(QNetworkReply* reply);
    QNetworkRequest MakeNetworkRequest() const;
    void OnProgress(qint64 received, qint64 total);
    void OnTimeLimit();
    void OnReplyFinished();
    void Judge(QNetworkReply& reply);
    void FollowRedirect(const QNetworkReply& reply);
    bool RetryLater(const ErrorInfo& error);
    bool AskPlainly(const ErrorInfo& error, const QNetworkReply& reply);
    bool AsksPlainly() const;
    void AskAgain(int wait);
    void LogStart() const;
    void LogEnd() const;
    void DropReply();
    void End(ErrorInfo error);

    QPointer<HttpChannel> m_channel;
    const Operation m_operation;
    const QUrl m_address;
    QUrl m_target;
    State m_state = State::Idle;
    ErrorCode m_refusal = ErrorCode::None;
    ErrorInfo m_error;
    HostQueue::Ticket m_ticket;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timeLimit;
    QTimer m_retry;
    QList<QSslError> m_tlsErrors;
    QByteArray m_dateHeader;
    QDateTime m_answeredAt;
    QElapsedTimer m_sinceSent;
    qint64 m_received = 0;
    int m_number = 0;
    int m_tries = 0;
    int m_redirects = 0;
    bool m_wantsPlain = false;
};

} // namespace componentlibrary
