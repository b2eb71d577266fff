#include "FaultRelay/FaultRelayThread.h"

#include "Text/ListenFault.h"

#include <QElapsedTimer>
#include <stdexcept>
#include <utility>

namespace nuqcloud {
namespace {

constexpr unsigned long kLookAgainMilliseconds = 5;

FaultRelaySettings InFrontOf(quint16 targetPort)
{
    FaultRelaySettings settings;
    settings.targetPort = targetPort;
    return settings;
}

} // namespace

FaultRelayThread::FaultRelayThread(quint16 targetPort)
    : FaultRelayThread(InFrontOf(targetPort), std::make_shared<FaultPlan>())
{
}

FaultRelayThread::FaultRelayThread(FaultRelaySettings settings, std::shared_ptr<FaultPlan> plan)
    : m_plan(std::move(plan))
{
    m_onThread.moveToThread(&m_thread);
    m_thread.start();
    QString error;
    OnThread([&] {
        m_relay = new FaultRelay(settings, m_plan);
        m_port = m_relay->Port();
        error = m_relay->Error();
    });
    if (!error.isEmpty()) {
        EndThread();
        throw std::runtime_error(ListenFault(settings.host.toStdString(), settings.port, error.toStdString()));
    }
}

FaultRelayThread::~FaultRelayThread()
{
    EndThread();
}

void FaultRelayThread::EndThread()
{
    OnThread([this] { delete std::exchange(m_relay, nullptr); });
    m_thread.quit();
    m_thread.wait();
}

void FaultRelayThread::OnThread(const std::function<void()>& work)
{
    QMetaObject::invokeMethod(&m_onThread, work, Qt::BlockingQueuedConnection);
}

void FaultRelayThread::Drain(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    OnThread([this] { m_relay->Drain(); });
    int open = 1;
    while (open > 0 && !clock.hasExpired(milliseconds)) {
        OnThread([&] { open = m_relay->ConnectionCount(); });
        QThread::msleep(kLookAgainMilliseconds);
    }
}

} // namespace nuqcloud
