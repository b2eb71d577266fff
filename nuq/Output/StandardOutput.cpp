#include "Output/StandardOutput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#ifdef _WIN32
#include <io.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace nuq {
namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;
constexpr int kStandardOutput = 1;

#ifdef _WIN32
long long WriteSome(std::string_view text)
{
    return _write(kStandardOutput, text.data(), static_cast<unsigned>(std::min<std::size_t>(text.size(), 1 << 20)));
}

void WaitUntilWritable() {}
#else
ssize_t WriteSome(std::string_view text)
{
    return ::write(kStandardOutput, text.data(), text.size());
}

void WaitUntilWritable()
{
    pollfd output{kStandardOutput, POLLOUT, 0};
    ::poll(&output, 1, -1);
}
#endif

} // namespace

StandardOutput::StandardOutput(std::function<bool()> isInterrupted) : m_isInterrupted(std::move(isInterrupted)) {}

StandardOutput::~StandardOutput()
{
    Flush();
}

void StandardOutput::Write(std::string_view text)
{
    if (m_buffer.size() + text.size() >= kPiece)
        Flush();
    if (text.size() >= kPiece)
        return Send(text);
    m_buffer += text;
}

void StandardOutput::Flush()
{
    Send(m_buffer);
    m_buffer.clear();
}

void StandardOutput::Send(std::string_view text)
{
    while (!text.empty() && !m_isClosed && m_fault.empty()) {
        const auto written = WriteSome(text);
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            WaitUntilWritable(); // somebody made the shared terminal or pipe non-blocking
        } else if (errno == EPIPE || (errno == EINTR && m_isInterrupted())) {
            m_isClosed = true;
        } else if (errno != EINTR) {
            m_fault = std::strerror(errno);
        }
    }
}

} // namespace nuq
