#include "support/LoopbackListener.h"

#include "support/LoopbackConnection.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <memory>
#include <utility>

namespace testsupport {

LoopbackListener::LoopbackListener(LoopbackScript& script, std::optional<TestCertificate> certificate)
    : m_script(script), m_certificate(std::move(certificate))
{
}

void LoopbackListener::incomingConnection(qintptr descriptor)
{
    QTcpSocket* const socket = m_certificate ? MakeEncryptedSocket(descriptor) : MakeSocket(descriptor);
    new LoopbackConnection(socket, m_script, ++m_connections, this);
}

QTcpSocket* LoopbackListener::MakeSocket(qintptr descriptor)
{
    auto socket = std::make_unique<QTcpSocket>();
    socket->setSocketDescriptor(descriptor);
    return socket.release();
}

QTcpSocket* LoopbackListener::MakeEncryptedSocket(qintptr descriptor)
{
    auto socket = std::make_unique<QSslSocket>();
    socket->setSocketDescriptor(descriptor);
    socket->setLocalCertificate(m_certificate->Certificate());
    socket->setPrivateKey(m_certificate->Key());
    socket->startServerEncryption();
    return socket.release();
}

} // namespace testsupport
