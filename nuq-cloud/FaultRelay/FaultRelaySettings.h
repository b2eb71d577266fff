#pragma once

#include <QByteArray>
#include <QString>

namespace nuqcloud {

/// Where a relay listens and what it stands in front of.
struct FaultRelaySettings
{
    QString targetHost = QStringLiteral("127.0.0.1");
    quint16 targetPort = 0;
    QString host = QStringLiteral("127.0.0.1");
    quint16 port = 0;          ///< 0 takes a free one
    QByteArray certificatePem; ///< with the key: clients speak TLS to the relay; the server behind is spoken to plainly
    QByteArray privateKeyPem;
    bool obeysHeader = true; ///< false: X-Nuq-Fault is taken off requests unread
};

} // namespace nuqcloud
