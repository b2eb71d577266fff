#pragma once

#include "support/LoopbackScript.h"
#include "support/TestCertificate.h"

#include <QSslCertificate>
#include <QThread>
#include <QUrl>
#include <optional>
#include <string>
#include <vector>

namespace testsupport {

class LoopbackListener;

/**
 * A real HTTP/1.1 server on 127.0.0.1 with scripted answers.
 *
 * It runs in a thread of its own, so clients may block; every operation may be called from the test's thread at any
 * time. Connections are kept unless an answer closes them. A request without an answer gets 501 and fails the test
 * when the server goes away. The destructor closes every connection.
 *
 *     LoopbackServer server;
 *     server.On("/api/v3/categories", ScriptedResponse::Json(body));
 *     ... server.Url("/api/v3/categories?major=1") ...
 *     EXPECT_EQ(server.Requests().at(0).Header("authorization"), "token");
 */
class LoopbackServer
{
public:
    enum class Transport
    {
        Plain,
        Tls,
    };

    explicit LoopbackServer(Transport transport = Transport::Plain);
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /**
     * Answers requests for a path, or for one exact target with its query, by any method.
     *
     * Called again for the same text, the answers are given in this order and the last one repeats. An answer for the
     * exact target comes before one for the path.
     */
    void On(const QByteArray& pathOrTarget, const ScriptedResponse& response);

    /// Answers the next request, whatever it asks for, before any On() is looked at; several wait in line.
    void Enqueue(const ScriptedResponse& response);

    /// The requests so far, in order of arrival.
    std::vector<ReceivedRequest> Requests() const;
    /// How many connections were accepted so far.
    int ConnectionCount() const;

    quint16 Port() const { return m_port; }
    /// Scheme, address and port without a slash at the end.
    QString BaseUrl() const;
    /// The full address of a target such as "/path?query".
    QUrl Url(const QString& target = QStringLiteral("/")) const;

    /// The certificate that a client would have to trust; null without TLS.
    QSslCertificate Certificate() const;

private:
    LoopbackScript m_script;
    std::optional<TestCertificate> m_certificate;
    QThread m_thread;
    /// Deletes itself in its thread when that ends.
    LoopbackListener* m_listener;
    quint16 m_port = 0;
};

} // namespace testsupport
