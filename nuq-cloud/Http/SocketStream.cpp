#include "Http/SocketStream.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <charconv>
#include <netdb.h>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>

namespace nuqcloud {
namespace {

constexpr std::size_t kInputChunk = 16384;
constexpr std::size_t kOutputLimit = 65536;

using NameOf = int (*)(int, sockaddr*, socklen_t*);

bool WaitFor(socket_t socket, short events, std::chrono::milliseconds limit)
{
    pollfd descriptor{socket, events, 0};
    const int timeout = static_cast<int>(std::max(limit, std::chrono::milliseconds(0)).count());
    int ready = 0;
    do {
        ready = ::poll(&descriptor, 1, timeout);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

void ReadAddress(socket_t socket, NameOf nameOf, std::string& ip, int& port)
{
    sockaddr_storage address{};
    socklen_t length = sizeof(address);
    char host[NI_MAXHOST] = {};
    char service[NI_MAXSERV] = {};
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (nameOf(socket, generic, &length) != 0 || ::getnameinfo(generic, length, host, sizeof(host), service,
                                                     sizeof(service), NI_NUMERICHOST | NI_NUMERICSERV) != 0) {
        return;
    }
    ip = host;
    const std::string_view digits(service);
    std::from_chars(digits.data(), digits.data() + digits.size(), port);
}

ssize_t Receive(socket_t socket, char* target, std::size_t size)
{
    ssize_t count = 0;
    do {
        count = ::recv(socket, target, size, 0);
    } while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

SocketStream::SocketStream(socket_t socket, Limits limits)
    : m_socket(socket), m_limits(limits), m_deadline(std::chrono::steady_clock::now() + limits.request)
{
}

bool SocketStream::is_readable() const
{
    return HasBufferedInput() || WaitFor(m_socket, POLLIN, m_limits.silence);
}

bool SocketStream::is_writable() const
{
    return WaitFor(m_socket, POLLOUT, m_limits.silence);
}

ssize_t SocketStream::read(char* ptr, size_t size)
{
    if (!HasBufferedInput()) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(m_deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !WaitFor(m_socket, POLLIN, std::min(left, m_limits.silence))) {
            return -1;
        }
        m_input.resize(kInputChunk);
        m_inputPosition = 0;
        const ssize_t count = Receive(m_socket, m_input.data(), m_input.size());
        m_input.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count <= 0) {
            return count;
        }
    }
    const std::size_t taken = std::min(size, m_input.size() - m_inputPosition);
    std::copy_n(m_input.data() + m_inputPosition, taken, ptr);
    m_inputPosition += taken;
    return static_cast<ssize_t>(taken);
}

ssize_t SocketStream::write(const char* ptr, size_t size)
{
    NoteHead(ptr, size);
    m_sent += size;
    m_output.append(ptr, size);
    if (m_output.size() > kOutputLimit && !Flush()) {
        return -1;
    }
    return static_cast<ssize_t>(size);
}

/// httplib writes a head in one piece; the piece tells the status and where the body begins.
void SocketStream::NoteHead(const char* ptr, size_t size)
{
    if (m_headBytes != 0) {
        return;
    }
    const std::string_view text(ptr, size);
    if (m_status == 0 && text.size() > 12) {
        std::from_chars(ptr + 9, ptr + 12, m_status);
    }
    const std::size_t end = text.find("\r\n\r\n");
    m_headBytes = end == std::string_view::npos ? 0 : m_sent + end + 4;
}

void SocketStream::get_remote_ip_and_port(std::string& ip, int& port) const
{
    ReadAddress(m_socket, &::getpeername, ip, port);
}

void SocketStream::get_local_ip_and_port(std::string& ip, int& port) const
{
    ReadAddress(m_socket, &::getsockname, ip, port);
}

socket_t SocketStream::socket() const
{
    return m_socket;
}

void SocketStream::BeginExchange()
{
    m_deadline = std::chrono::steady_clock::now() + m_limits.request;
    m_status = 0;
    m_sent = 0;
    m_headBytes = 0;
}

bool SocketStream::Flush()
{
    std::size_t position = 0;
    while (position < m_output.size()) {
        const ssize_t count = ::send(m_socket, m_output.data() + position, m_output.size() - position, MSG_NOSIGNAL);
        if (count > 0) {
            position += static_cast<std::size_t>(count);
        } else if (errno != EINTR && (errno != EAGAIN || !is_writable())) {
            return false;
        }
    }
    m_output.clear();
    return true;
}

} // namespace nuqcloud
