#pragma once

#include <chrono>
#include <cstddef>
#include <httplib.h>
#include <string>

namespace nuqcloud {

/// One connection's bytes for httplib: buffered both ways, so that a reply leaves in one piece.
///
/// It also reads off what went out (status, body bytes), which is the truth that the access log wants.
/// The socket stays the caller's.
class SocketStream : public httplib::Stream
{
public:
    /// How long a silent peer is waited for, and how long a request's head may take in all.
    struct Limits
    {
        std::chrono::milliseconds silence{5000};
        std::chrono::milliseconds request{30000};
    };

    SocketStream(socket_t socket, Limits limits);

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* ptr, size_t size) override;
    ssize_t write(const char* ptr, size_t size) override;
    void get_remote_ip_and_port(std::string& ip, int& port) const override;
    void get_local_ip_and_port(std::string& ip, int& port) const override;
    socket_t socket() const override;

    /// True when bytes of the next request have been read already.
    bool HasBufferedInput() const { return m_inputPosition < m_input.size(); }

    /// Starts the account of a new exchange and its time limit.
    void BeginExchange();

    /// Sends what is held back; false when the peer is gone.
    bool Flush();

    /// Status of the reply sent since BeginExchange, 0 when none was.
    int Status() const { return m_status; }

    /// Bytes sent since BeginExchange behind the reply's head.
    std::size_t BodyBytes() const { return m_sent - m_headBytes; }

private:
    void NoteHead(const char* ptr, size_t size);

    const socket_t m_socket;
    const Limits m_limits;
    std::chrono::steady_clock::time_point m_deadline;
    std::string m_input;
    std::size_t m_inputPosition = 0;
    std::string m_output;
    int m_status = 0;
    std::size_t m_sent = 0;
    std::size_t m_headBytes = 0;
};

} // namespace nuqcloud
