#pragma once

#include "FaultRelay/FaultPlan.h"
#include "FaultRelay/FaultRelaySettings.h"

#include <QString>
#include <QTcpServer>
#include <memory>

namespace nuqcloud {

/// A relay in front of any HTTP/1.1 server, which passes bytes on and damages replies on order.
///
/// A request is damaged when a rule of the plan hits it or when it carries the header
/// "X-Nuq-Fault: kind[=value],.." (Fault.h lists the kinds). Kinds that a relay cannot make are left to the server
/// behind it, which gets them in the same header. Runs in the event loop of the thread that made it.
class FaultRelay : public QTcpServer
{
    Q_OBJECT

public:
    /// Listens on a free port of 127.0.0.1 in front of the port there.
    explicit FaultRelay(quint16 targetPort, QObject* parent = nullptr);

    /// @param plan shared with whoever adds rules; must not be null
    FaultRelay(FaultRelaySettings settings, std::shared_ptr<FaultPlan> plan, QObject* parent = nullptr);

    /// Drops all connections.
    ~FaultRelay() override;

    /// The port in use; 0 when the address could not be bound.
    quint16 Port() const { return serverPort(); }

    /// Why the address could not be bound; empty when it was.
    QString Error() const;

    /// Adds a rule; may be called from any thread.
    void AddRule(FaultRule rule) { m_plan->Add(std::move(rule)); }

    /// Takes no new connections, ends idle and stalled ones, and each other one after its reply.
    void Drain();

    /// Connections that are open.
    int ConnectionCount() const;

private:
    void incomingConnection(qintptr descriptor) override;
    void TakeConnection(QTcpSocket* client);

    const FaultRelaySettings m_settings;
    const std::shared_ptr<FaultPlan> m_plan;
};

} // namespace nuqcloud
