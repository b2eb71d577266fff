#include "FaultRelay/FaultRelay.h"

#include "FaultRelay/RelayConnection.h"
#include "Text/ListenFault.h"

#include <QHostAddress>
#include <QHostInfo>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <utility>

namespace nuqcloud {
namespace {

FaultRelaySettings InFrontOf(quint16 targetPort)
{
    FaultRelaySettings settings;
    settings.targetPort = targetPort;
    return settings;
}

QHostAddress AddressOf(const QString& host)
{
    const QHostAddress address(host);
    return address.isNull() ? QHostInfo::fromName(host).addresses().value(0) : address;
}

QSslKey PrivateKey(const QByteArray& pem)
{
    const QSslKey rsa(pem, QSsl::Rsa);
    return rsa.isNull() ? QSslKey(pem, QSsl::Ec) : rsa;
}

QList<RelayConnection*> Connections(const FaultRelay& relay)
{
    return relay.findChildren<RelayConnection*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

FaultRelay::FaultRelay(quint16 targetPort, QObject* parent)
    : FaultRelay(InFrontOf(targetPort), std::make_shared<FaultPlan>(), parent)
{
}

FaultRelay::FaultRelay(FaultRelaySettings settings, std::shared_ptr<FaultPlan> plan, QObject* parent)
    : QTcpServer(parent), m_settings(std::move(settings)), m_plan(std::move(plan))
{
    // A null address would make Qt listen on all of them.
    const QHostAddress address = AddressOf(m_settings.host);
    if (!address.isNull()) {
        listen(address, m_settings.port);
    }
}

FaultRelay::~FaultRelay()
{
    close();
    qDeleteAll(Connections(*this));
}

QString FaultRelay::Error() const
{
    if (isListening()) {
        return QString();
    }
    return serverError() == QAbstractSocket::UnknownSocketError ? QString::fromLatin1(kUnknownHost) : errorString();
}

void FaultRelay::Drain()
{
    close();
    for (RelayConnection* connection : Connections(*this)) {
        connection->EndSoon();
    }
}

int FaultRelay::ConnectionCount() const
{
    return Connections(*this).size();
}

void FaultRelay::incomingConnection(qintptr descriptor)
{
    if (m_settings.certificatePem.isEmpty()) {
        auto* const client = new QTcpSocket(this);
        client->setSocketDescriptor(descriptor);
        TakeConnection(client);
        return;
    }
    auto* const client = new QSslSocket(this);
    client->setSocketDescriptor(descriptor);
    client->setLocalCertificateChain(QSslCertificate::fromData(m_settings.certificatePem));
    client->setPrivateKey(PrivateKey(m_settings.privateKeyPem));
    client->startServerEncryption();
    TakeConnection(client);
}

void FaultRelay::TakeConnection(QTcpSocket* client)
{
    new RelayConnection(client, m_settings, *m_plan, this);
}

} // namespace nuqcloud
