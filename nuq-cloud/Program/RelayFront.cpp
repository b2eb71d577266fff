#include "Program/RelayFront.h"

#include "FaultRelay/FaultRelayThread.h"

#include <QCoreApplication>
#include <QSslSocket>
#include <stdexcept>

namespace nuqcloud {
namespace {

constexpr int kDrainMilliseconds = 5000;

FaultRelaySettings ToRelaySettings(const RelayFront::Settings& settings)
{
    if (settings.tls && !QSslSocket::supportsSsl()) {
        throw std::runtime_error("TLS is not available: Qt cannot load OpenSSL. Install libssl, or leave --tls out.");
    }
    FaultRelaySettings relay;
    relay.host = QString::fromStdString(settings.host);
    relay.port = static_cast<quint16>(settings.port);
    relay.targetPort = static_cast<quint16>(settings.targetPort);
    relay.obeysHeader = settings.obeysHeader;
    if (settings.tls) {
        relay.certificatePem = QByteArray::fromStdString(settings.tls->certificatePem);
        relay.privateKeyPem = QByteArray::fromStdString(settings.tls->privateKeyPem);
    }
    return relay;
}

} // namespace

class RelayFront::Implementation
{
public:
    Implementation(const Settings& settings, std::shared_ptr<FaultPlan> plan)
        : m_application(QCoreApplication::instance() == nullptr
                            ? std::make_unique<QCoreApplication>(m_argumentCount, m_arguments)
                            : nullptr),
          m_thread(ToRelaySettings(settings), std::move(plan))
    {
    }

private:
    // QCoreApplication keeps references to both.
    int m_argumentCount = 1;
    char m_name[10] = "nuq-cloud";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QCoreApplication> m_application;

public:
    FaultRelayThread m_thread;
};

RelayFront::RelayFront(const Settings& settings, std::shared_ptr<FaultPlan> plan)
    : m_implementation(std::make_unique<Implementation>(settings, std::move(plan)))
{
}

RelayFront::~RelayFront() = default;

int RelayFront::Port() const
{
    return m_implementation->m_thread.Port();
}

void RelayFront::Drain()
{
    m_implementation->m_thread.Drain(kDrainMilliseconds);
}

} // namespace nuqcloud
