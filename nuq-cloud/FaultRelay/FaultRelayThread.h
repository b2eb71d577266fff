#pragma once

#include "FaultRelay/FaultRelay.h"

#include <QObject>
#include <QThread>
#include <functional>
#include <memory>

namespace nuqcloud {

/// A relay with a thread and an event loop of its own, for programs and tests that have none to give.
///
/// REQUIRES: a QCoreApplication exists.
class FaultRelayThread
{
public:
    /// Returns when the relay listens.
    /// @throws std::runtime_error when the address cannot be bound
    FaultRelayThread(FaultRelaySettings settings, std::shared_ptr<FaultPlan> plan);

    /// In front of a port of 127.0.0.1, on a free port there.
    explicit FaultRelayThread(quint16 targetPort);

    /// Drops all connections and waits for the thread.
    ~FaultRelayThread();

    FaultRelayThread(const FaultRelayThread&) = delete;
    FaultRelayThread& operator=(const FaultRelayThread&) = delete;

    quint16 Port() const { return m_port; }
    void AddRule(FaultRule rule) { m_plan->Add(std::move(rule)); }

    /// Takes no new connections and waits, up to the limit, until the clients of the open ones are done.
    void Drain(int milliseconds);

private:
    void OnThread(const std::function<void()>& work);
    void EndThread();

    const std::shared_ptr<FaultPlan> m_plan;
    QThread m_thread;
    QObject m_onThread;            ///< receives what is to be done on the thread
    FaultRelay* m_relay = nullptr; ///< lives and dies on the thread
    quint16 m_port = 0;
};

} // namespace nuqcloud
