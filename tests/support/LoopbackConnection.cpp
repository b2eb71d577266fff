#include "support/LoopbackConnection.h"

#include "support/LoopbackScript.h"

#include <QTimer>

namespace testsupport {

LoopbackConnection::LoopbackConnection(QTcpSocket* socket, LoopbackScript& script, int number, QObject* parent)
    : QObject(parent), m_socket(socket), m_script(script), m_number(number)
{
    m_socket->setParent(this);
    connect(m_socket, &QTcpSocket::readyRead, this, &LoopbackConnection::Receive);
    connect(m_socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
}

void LoopbackConnection::Receive()
{
    m_reader.Feed(m_socket->readAll());
    AnswerNext();
}

void LoopbackConnection::AnswerNext()
{
    if (m_response) {
        return;
    }
    std::optional<ReceivedRequest> request = m_reader.Next();
    if (!request) {
        return;
    }
    request->connection = m_number;
    m_response = m_script.Answer(*request);
    m_unsent = m_response->Wire(request->method);
    QTimer::singleShot(m_response->Delay(), this, &LoopbackConnection::Send);
}

void LoopbackConnection::Send()
{
    if (m_response->DripBytes() > 0) {
        Drip();
        return;
    }
    m_socket->write(m_unsent);
    Finish();
}

void LoopbackConnection::Drip()
{
    m_socket->write(m_unsent.left(m_response->DripBytes()));
    m_unsent.remove(0, m_response->DripBytes());
    if (m_unsent.isEmpty()) {
        Finish();
    } else {
        QTimer::singleShot(m_response->DripInterval(), this, &LoopbackConnection::Drip);
    }
}

void LoopbackConnection::Finish()
{
    const std::optional<ScriptedResponse::CutAction> end = m_response->End();
    if (end == ScriptedResponse::CutAction::Stall) {
        return;
    }
    m_response.reset();
    if (end == ScriptedResponse::CutAction::Close) {
        m_socket->disconnectFromHost();
    } else {
        AnswerNext();
    }
}

} // namespace testsupport
