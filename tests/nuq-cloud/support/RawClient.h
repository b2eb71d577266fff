#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cloudtest {

/// A reply as its bytes came.
struct RawReply
{
    std::string head; ///< with the empty line; without one when the head is not complete
    std::string body;

    /// The number behind "HTTP/1.1", 0 when there is none.
    int Status() const;
    /// Empty when absent; names are compared without case.
    std::string Header(const std::string& name) const;
    /// The body, uncompressed when it is gzip.
    std::string Text() const;
};

/// A client that sees the bytes: nothing is retried, repaired or hidden. Every wait ends after five seconds.
class RawClient
{
public:
    explicit RawClient(int port);
    ~RawClient();
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;

    void Send(const std::string& bytes) const;

    /// Reads one reply by its Content-Length.
    /// @param withBody false for a reply to HEAD
    RawReply ReadReply(bool withBody = true);

    /// Reads until the server closes, until nothing comes for that long, or until the limit.
    std::string ReadAll(int silenceMilliseconds = 5000);

    /// How the last read ended.
    bool WasClosed() const { return m_closed; }
    bool WasReset() const { return m_reset; }

    /// Takes no more bytes and tells the server so by a reset.
    void Abort();

private:
    bool ReadSome(int milliseconds);

    int m_socket = -1;
    std::string m_input;
    bool m_closed = false;
    bool m_reset = false;
};

/// A request's text: "GET target" with Host and the given headers.
std::string Request(
    const std::string& target, const std::vector<std::string>& headers = {}, const std::string& method = "GET");

/// One request on a connection of its own.
RawReply Fetch(int port, const std::string& target, const std::vector<std::string>& headers = {},
    const std::string& method = "GET");

/// Splits a whole answer into head and body at the first empty line.
RawReply Split(const std::string& bytes);

} // namespace cloudtest
