#include "Program/StopSignals.h"

#include <pthread.h>

namespace nuqcloud {

StopSignals::StopSignals()
{
    ::sigemptyset(&m_signals);
    ::sigaddset(&m_signals, SIGTERM);
    ::sigaddset(&m_signals, SIGINT);
    ::pthread_sigmask(SIG_BLOCK, &m_signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

void StopSignals::Wait() const
{
    int received = 0;
    ::sigwait(&m_signals, &received);
}

} // namespace nuqcloud
