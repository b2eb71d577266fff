#include "Http/WakeUpPipe.h"

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace nuqcloud {

WakeUpPipe::WakeUpPipe()
{
    if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "Cannot make a pipe");
    }
}

WakeUpPipe::~WakeUpPipe()
{
    ::close(m_ends[0]);
    ::close(m_ends[1]);
}

void WakeUpPipe::Wake() const
{
    const char byte = 0;
    // A full pipe is as good as a written one: it is readable.
    [[maybe_unused]] const auto ignored = ::write(m_ends[1], &byte, 1);
}

} // namespace nuqcloud
