#include "Program/Interruption.h"

#include <QSocketNotifier>

#include <atomic>
#include <csignal>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace nuq {
namespace {

// A signal handler can reach nothing but static storage.
std::atomic<int>& ReceivedSignal()
{
    static std::atomic<int> signal{0};
    return signal;
}

std::atomic<int>& WakeUpPipe()
{
    static std::atomic<int> pipe{-1};
    return pipe;
}

#ifndef _WIN32
extern "C" void OnSignal(int signal)
{
    ReceivedSignal() = signal;
    const char byte = 1;
    // A full or missing pipe is no loss: one byte wakes the loop, and without a loop the flag is asked.
    if (WakeUpPipe() >= 0 && ::write(WakeUpPipe(), &byte, 1) < 0)
        return;
}

void Catch(int signal)
{
    struct sigaction action = {};
    action.sa_handler = &OnSignal;
    sigemptyset(&action.sa_mask);
    // No SA_RESTART: a write to a slow reader has to notice. SA_RESETHAND: the second Ctrl-C ends at once.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}
#endif

} // namespace

Interruption::Interruption(QObject* parent) : QObject(parent)
{
    // Both statics exist before a handler can run.
    ReceivedSignal() = 0;
#ifndef _WIN32
    std::signal(SIGPIPE, SIG_IGN);
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    WakeUpPipe() = m_pipe[1];
    m_notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &Interruption::OnReadable);
    Catch(SIGINT);
    Catch(SIGTERM);
#endif
}

Interruption::~Interruption()
{
#ifndef _WIN32
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    WakeUpPipe() = -1;
    for (const int end : m_pipe) {
        if (end >= 0)
            ::close(end);
    }
#endif
}

bool Interruption::HasHappened()
{
    return ReceivedSignal() != 0;
}

ExitCode Interruption::Code()
{
    return ReceivedSignal() == SIGTERM ? ExitCode::Terminated : ExitCode::Interrupted;
}

void Interruption::OnReadable()
{
#ifndef _WIN32
    char bytes[16];
    while (::read(m_pipe[0], bytes, sizeof bytes) > 0) {
    }
#endif
    emit Happened();
}

} // namespace nuq
