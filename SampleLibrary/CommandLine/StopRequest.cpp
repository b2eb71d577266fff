#include "CommandLine/StopRequest.h"

#include <csignal>

namespace samplelibrary {

namespace {

// A signal handler has no object to refer to.
std::atomic<bool> g_isStopped{false};
std::atomic<int> g_signal{SIGINT};

void Remember(int signal)
{
    g_signal = signal;
    g_isStopped = true;
}

} // namespace

StopRequest::StopRequest()
{
    g_isStopped = false;
    std::signal(SIGINT, Remember);
    std::signal(SIGTERM, Remember);
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

StopRequest::~StopRequest()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

const std::atomic<bool>& StopRequest::Flag() const
{
    return g_isStopped;
}

int StopRequest::ExitCode() const
{
    return 128 + g_signal;
}

} // namespace samplelibrary
