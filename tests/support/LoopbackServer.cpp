#include "support/LoopbackServer.h"

#include "support/LoopbackListener.h"

#include <gtest/gtest.h>

namespace testsupport {

namespace {

std::optional<TestCertificate> CertificateFor(LoopbackServer::Transport transport)
{
    return transport == LoopbackServer::Transport::Tls ? std::optional(TestCertificate()) : std::nullopt;
}

} // namespace

LoopbackServer::LoopbackServer(Transport transport)
    : m_certificate(CertificateFor(transport)), m_listener(new LoopbackListener(m_script, m_certificate))
{
    m_listener->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_listener, &QObject::deleteLater);
    m_thread.start();
    const auto listen = [this] { m_listener->listen(QHostAddress::LocalHost); };
    QMetaObject::invokeMethod(m_listener, listen, Qt::BlockingQueuedConnection);
    m_port = m_listener->serverPort();
    EXPECT_NE(m_port, 0) << "the loopback server cannot listen";
}

LoopbackServer::~LoopbackServer()
{
    m_thread.quit();
    m_thread.wait();
    const QStringList unmatched = m_script.Unmatched();
    EXPECT_TRUE(unmatched.isEmpty()) << "no answer for: " << unmatched.join(QStringLiteral(", ")).toStdString();
}

void LoopbackServer::On(const QByteArray& pathOrTarget, const ScriptedResponse& response)
{
    m_script.On(pathOrTarget, response);
}

void LoopbackServer::Enqueue(const ScriptedResponse& response)
{
    m_script.Enqueue(response);
}

std::vector<ReceivedRequest> LoopbackServer::Requests() const
{
    return m_script.Requests();
}

int LoopbackServer::ConnectionCount() const
{
    return m_listener->ConnectionCount();
}

QString LoopbackServer::BaseUrl() const
{
    const QString scheme = m_certificate ? QStringLiteral("https") : QStringLiteral("http");
    return QStringLiteral("%1://127.0.0.1:%2").arg(scheme).arg(m_port);
}

QUrl LoopbackServer::Url(const QString& target) const
{
    return QUrl(BaseUrl() + target);
}

QSslCertificate LoopbackServer::Certificate() const
{
    return m_certificate ? m_certificate->Certificate() : QSslCertificate();
}

} // namespace testsupport
