#pragma once

#include "support/TestCertificate.h"

#include <QTcpServer>
#include <atomic>
#include <optional>

class QTcpSocket;

namespace testsupport {

class LoopbackScript;

/// Accepts a LoopbackServer's connections. Lives in the server's thread.
class LoopbackListener : public QTcpServer
{
    Q_OBJECT

public:
    /// Connections are encrypted when a certificate is given.
    LoopbackListener(LoopbackScript& script, std::optional<TestCertificate> certificate);

    /// How many connections were accepted so far. May be called from any thread.
    int ConnectionCount() const { return m_connections; }

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QTcpSocket* MakeSocket(qintptr descriptor);
    QTcpSocket* MakeEncryptedSocket(qintptr descriptor);

    LoopbackScript& m_script;
    std::optional<TestCertificate> m_certificate;
    std::atomic<int> m_connections{0};
};

} // namespace testsupport
