#include "FaultRelay/RelayConnection.h"

#include <sys/socket.h>
#include <utility>

namespace nuqcloud {
namespace {

constexpr int kLongestHead = 1 << 17;
constexpr qint64 kReadAhead = 1 << 18;
const char kFaultHeader[] = "X-Nuq-Fault";

QByteArray PathOf(const HttpHead& head)
{
    return head.Word(1).split('?').value(0);
}

QByteArray PlainReply(const QByteArray& status, const QByteArray& reason)
{
    return "HTTP/1.1 " + status +
           "\r\nContent-Type: text/plain\r\nContent-Length: " + QByteArray::number(reason.size()) +
           "\r\nConnection: close\r\n\r\n" + reason;
}

} // namespace

RelayConnection::RelayConnection(
    QTcpSocket* client, const FaultRelaySettings& settings, FaultPlan& plan, QObject* parent)
    : QObject(parent), m_client(client), m_settings(settings), m_plan(plan), m_writer(*client)
{
    m_client->setParent(this);
    m_client->setReadBufferSize(kReadAhead);
    m_client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_target.setReadBufferSize(kReadAhead);
    connect(m_client, &QTcpSocket::readyRead, this, &RelayConnection::ReadClient);
    connect(m_client, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    connect(&m_target, &QTcpSocket::connected, this,
        [this] { m_target.setSocketOption(QAbstractSocket::LowDelayOption, 1); });
    connect(&m_target, &QTcpSocket::readyRead, this, &RelayConnection::ReadTarget);
    connect(&m_target, &QTcpSocket::disconnected, this, &RelayConnection::TargetGone);
    connect(&m_target, &QTcpSocket::errorOccurred, this, [this] {
        if (m_target.state() != QAbstractSocket::ConnectedState) {
            TargetGone();
        }
    });
    connect(&m_writer, &DamagedWriter::Finished, this, &RelayConnection::ReplySent, Qt::QueuedConnection);
    connect(&m_writer, &DamagedWriter::RoomMade, this, &RelayConnection::ReadTarget, Qt::QueuedConnection);
    ReadClient();
}

/// A dying socket still reports that it is closed; nobody is there to hear it.
RelayConnection::~RelayConnection()
{
    m_target.disconnect(this);
    m_client->disconnect(this);
}

void RelayConnection::EndSoon()
{
    m_isEnding = true;
    if (!m_requestIsRunning || m_isStalled) {
        m_client->disconnectFromHost();
    }
}

void RelayConnection::ReadClient()
{
    TakeRequest();
    while (m_client->bytesAvailable() > 0 && m_clientBytes.size() <= kLongestHead) {
        m_clientBytes += m_client->read(kReadAhead);
        TakeRequest();
    }
}

void RelayConnection::TakeRequest()
{
    if (m_requestIsRunning || ReadRequestHead()) {
        PassRequestBody();
    }
}

bool RelayConnection::ReadRequestHead()
{
    const int end = HttpHead::EndOf(m_clientBytes);
    if (end < 0) {
        if (m_clientBytes.size() > kLongestHead) {
            Refuse("431 Request Header Fields Too Large", "The request's head is too long.");
        }
        return false;
    }
    HttpHead head = HttpHead::Parse(m_clientBytes.left(end));
    m_clientBytes.remove(0, end);
    m_requestIsRunning = true;
    try {
        m_faults = ParseFaults(m_settings.obeysHeader ? head.Value(kFaultHeader).toStdString() : std::string());
        StartRequest(std::move(head));
    } catch (const FaultSyntaxError& error) {
        Refuse("400 Bad Request", error.what());
        return false;
    }
    return true;
}

/// The server behind learns of all faults: it makes those that are replies of their own and logs the others.
void RelayConnection::StartRequest(HttpHead head)
{
    m_method = head.Word(0);
    const auto chosen = m_plan.Choose(m_method.toStdString(), PathOf(head).toStdString());
    m_faults.insert(m_faults.end(), chosen.begin(), chosen.end());
    head.Remove(kFaultHeader);
    if (!m_faults.empty()) {
        head.Add(kFaultHeader, QByteArray::fromStdString(FormatFaults(m_faults)));
    }
    m_requestBody = BodyFraming::OfRequest(head);
    m_replyHasBegun = false;
    m_replyHasEnded = false;
    if (m_target.state() == QAbstractSocket::UnconnectedState) {
        m_targetBytes.clear();
        m_target.connectToHost(m_settings.targetHost, m_settings.targetPort);
    }
    m_target.write(head.ToBytes());
}

void RelayConnection::PassRequestBody()
{
    const int count = m_requestBody.Take(m_clientBytes);
    if (count > 0) {
        m_target.write(m_clientBytes.constData(), count);
        m_clientBytes.remove(0, count);
    }
}

void RelayConnection::ReadTarget()
{
    if (m_replyHasEnded || !m_requestIsRunning || !m_writer.HasRoom()) {
        return;
    }
    m_targetBytes += m_target.readAll();
    if (!m_replyHasBegun && !ReadReplyHead()) {
        return;
    }
    PassReplyBody();
}

bool RelayConnection::ReadReplyHead()
{
    const int end = HttpHead::EndOf(m_targetBytes);
    if (end < 0) {
        return false;
    }
    const QByteArray bytes = m_targetBytes.left(end);
    const HttpHead head = HttpHead::Parse(bytes);
    m_targetBytes.remove(0, end);
    if (head.Word(1).startsWith('1')) {
        m_client->write(bytes); // "continue" and its like: the reply itself is still to come
        return ReadReplyHead();
    }
    m_replyBody = BodyFraming::OfReply(head, m_method);
    m_replyHasBegun = true;
    m_writer.Begin(Damage::Decide(m_faults, head, m_replyBody, m_plan));
    return true;
}

void RelayConnection::PassReplyBody()
{
    const int count = m_replyBody.Take(m_targetBytes);
    if (count > 0) {
        m_writer.Append(m_targetBytes.left(count));
        m_targetBytes.remove(0, count);
    }
    if (m_replyBody.IsComplete()) {
        m_replyHasEnded = true;
        m_writer.End(false);
    } else if (m_target.state() == QAbstractSocket::UnconnectedState && m_target.bytesAvailable() == 0) {
        m_replyHasEnded = true;
        m_writer.End(true);
    }
}

/// What the server sent before it went away is passed on first; then the client's connection ends too.
void RelayConnection::TargetGone()
{
    if (!m_requestIsRunning) {
        m_client->disconnectFromHost();
        return;
    }
    if (m_replyHasEnded) {
        return;
    }
    ReadTarget();
    if (!m_replyHasBegun) {
        Refuse("502 Bad Gateway", "The server behind the relay did not answer.");
    }
}

void RelayConnection::ReplySent(AfterReply after)
{
    if (after == AfterReply::Reset) {
        Reset();
        return;
    }
    m_isStalled = after == AfterReply::Stall;
    if (after == AfterReply::Close || m_isEnding) {
        m_client->disconnectFromHost();
    } else if (after == AfterReply::Keep) {
        m_requestIsRunning = false;
        ReadClient();
    }
}

void RelayConnection::Refuse(const QByteArray& status, const QByteArray& reason)
{
    m_requestIsRunning = true;
    m_replyHasEnded = true;
    m_target.abort();
    m_client->write(PlainReply(status, reason));
    m_client->disconnectFromHost();
}

/// Without the wait that closing normally has, the system sends a reset.
void RelayConnection::Reset()
{
    const linger atOnce{1, 0};
    ::setsockopt(static_cast<int>(m_client->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof(atOnce));
    m_client->abort();
}

} // namespace nuqcloud
