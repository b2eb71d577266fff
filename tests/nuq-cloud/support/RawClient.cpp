#include "nuq-cloud/support/RawClient.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>
#include <zlib.h>

namespace cloudtest {
namespace {

constexpr int kLimitMilliseconds = 5000;

std::string Gunzip(const std::string& bytes)
{
    z_stream stream{};
    inflateInit2(&stream, 15 + 16);
    std::string out;
    std::array<char, 65536> piece{};
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    int result = Z_OK;
    while (result == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        result = inflate(&stream, Z_NO_FLUSH);
        out.append(piece.data(), piece.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? out : "not gzip";
}

} // namespace

int RawReply::Status() const
{
    return head.compare(0, 9, "HTTP/1.1 ") == 0 ? std::atoi(head.c_str() + 9) : 0;
}

std::string RawReply::Header(const std::string& name) const
{
    for (std::size_t begin = head.find("\r\n"); begin != std::string::npos; begin = head.find("\r\n", begin + 2)) {
        const std::string line = head.substr(begin + 2, head.find("\r\n", begin + 2) - begin - 2);
        if (line.size() > name.size() && line[name.size()] == ':' &&
            ::strncasecmp(line.c_str(), name.c_str(), name.size()) == 0) {
            return line.substr(line.find_first_not_of(' ', name.size() + 1));
        }
    }
    return {};
}

std::string RawReply::Text() const
{
    return Header("Content-Encoding") == "gzip" ? Gunzip(body) : body;
}

RawClient::RawClient(int port) : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        const std::string reason = std::strerror(errno);
        ::close(m_socket);
        throw std::runtime_error("cannot connect to port " + std::to_string(port) + ": " + reason);
    }
}

RawClient::~RawClient()
{
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

void RawClient::Send(const std::string& bytes) const
{
    ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

bool RawClient::ReadSome(int milliseconds)
{
    pollfd descriptor{m_socket, POLLIN, 0};
    if (m_closed || ::poll(&descriptor, 1, milliseconds) <= 0) {
        return false;
    }
    std::array<char, 65536> piece{};
    const ssize_t count = ::recv(m_socket, piece.data(), piece.size(), 0);
    m_closed = count <= 0;
    m_reset = count < 0 && errno == ECONNRESET;
    if (count > 0) {
        m_input.append(piece.data(), static_cast<std::size_t>(count));
    }
    return count > 0;
}

RawReply RawClient::ReadReply(bool withBody)
{
    std::size_t end = m_input.find("\r\n\r\n");
    while (end == std::string::npos && ReadSome(kLimitMilliseconds)) {
        end = m_input.find("\r\n\r\n");
    }
    if (end == std::string::npos) {
        return {m_input, {}};
    }
    RawReply reply{m_input.substr(0, end + 4), {}};
    const auto length = withBody ? std::strtoull(reply.Header("Content-Length").c_str(), nullptr, 10) : 0;
    while (m_input.size() < reply.head.size() + length && ReadSome(kLimitMilliseconds)) {
    }
    reply.body = m_input.substr(reply.head.size(), length);
    m_input.erase(0, reply.head.size() + length);
    return reply;
}

std::string RawClient::ReadAll(int silenceMilliseconds)
{
    while (ReadSome(silenceMilliseconds)) {
    }
    std::string all;
    all.swap(m_input);
    return all;
}

void RawClient::Abort()
{
    const linger atOnce{1, 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof(atOnce));
    ::close(m_socket);
    m_socket = -1;
}

std::string Request(const std::string& target, const std::vector<std::string>& headers, const std::string& method)
{
    std::string text = method + ' ' + target + " HTTP/1.1\r\nHost: localhost\r\n";
    for (const std::string& header : headers) {
        text += header + "\r\n";
    }
    return text + "\r\n";
}

RawReply Fetch(int port, const std::string& target, const std::vector<std::string>& headers, const std::string& method)
{
    RawClient client(port);
    client.Send(Request(target, headers, method));
    return client.ReadReply(method != "HEAD");
}

RawReply Split(const std::string& bytes)
{
    const std::size_t end = bytes.find("\r\n\r\n");
    return end == std::string::npos ? RawReply{bytes, {}} : RawReply{bytes.substr(0, end + 4), bytes.substr(end + 4)};
}

} // namespace cloudtest
