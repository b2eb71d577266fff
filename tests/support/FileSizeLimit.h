#pragma once

#include <csignal>
#include <sys/resource.h>

namespace testsupport {

/// While it lives, no file of the process may grow beyond a size: writing ends as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limitBefore);
        const rlimit limit{bytes, m_limitBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_limitBefore);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_limitBefore{};
    sighandler_t m_handlerBefore;
};

} // namespace testsupport
