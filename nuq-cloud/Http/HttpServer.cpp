#include "Http/HttpServer.h"

#include "Http/EntityTags.h"
#include "Http/Gzip.h"
#include "Http/RequestIds.h"
#include "Http/SocketStream.h"
#include "Http/WakeUpPipe.h"
#include "Text/JsonWriter.h"
#include "Text/ListenFault.h"
#include "Text/Utf8.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <httplib.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace nuqcloud {
namespace {

constexpr std::size_t kThreads = 64; // a kept connection holds one
constexpr int kBacklog = 512;
constexpr int kKeepAliveSeconds = 5;
constexpr std::size_t kRequestsPerConnection = 100000;
constexpr int kLingerMilliseconds = 500;
constexpr std::size_t kGeneratedPiece = 65536;
constexpr std::size_t kLingerBytes = 1U << 20U;

const char kRequestIdHeader[] = "X-Request-Id";
/// httplib compresses by itself when it sees Accept-Encoding, with the slowest of brotli; so the value moves here.
const char kEncodingHeader[] = "Nuq-Accept-Encoding";
const char kOwnIdHeader[] = "Nuq-Own-Id"; // set when the client brought no id
const char kFaultHeader[] = "X-Nuq-Fault";

void Replace(httplib::Headers& headers, const char* name, const std::string& value)
{
    headers.erase(name);
    headers.emplace(name, value);
}

/// No request here needs a body, so none is read; what lies behind its head is not the next request.
bool CarriesBody(const httplib::Request& request)
{
    const std::string length = request.get_header_value("Content-Length");
    return request.has_header("Transfer-Encoding") || (!length.empty() && length != "0");
}

bool WantsClose(const httplib::Request& request)
{
    return ToLower(request.get_header_value("Connection")) == "close";
}

std::vector<std::string> AllValues(const httplib::Request& request, const char* name)
{
    std::vector<std::string> values;
    const auto range = request.headers.equal_range(name);
    for (auto it = range.first; it != range.second; ++it) {
        values.push_back(it->second);
    }
    return values;
}

HttpRequest ToHttpRequest(const httplib::Request& request)
{
    HttpRequest out;
    out.id = request.get_header_value(kRequestIdHeader);
    out.method = request.method;
    out.target = request.target;
    out.authorization = AllValues(request, "Authorization");
    out.acceptLanguage = request.get_header_value("Accept-Language");
    out.range = request.get_header_value("Range");
    out.ifRange = request.get_header_value("If-Range");
    out.ifNoneMatch = request.get_header_value("If-None-Match");
    out.faults = request.get_header_value(kFaultHeader);
    out.acceptsGzip = AcceptsGzip(request.get_header_value(kEncodingHeader));
    out.idIsClients = !request.has_header(kOwnIdHeader);
    return out;
}

/// The gzip form is another sequence of bytes: a client must not take parts of the two for one file, nor check it by
/// the digest of the other.
void TagAsGzip(httplib::Response& response)
{
    response.headers.erase("Repr-Digest");
    if (response.has_header("ETag")) {
        Replace(response.headers, "ETag", GzipTag(response.get_header_value("ETag")));
    }
}

void SetBody(const HttpReply& reply, bool acceptsGzip, httplib::Response& response)
{
    const std::string& plain = reply.prepared ? reply.prepared->plain : reply.body;
    std::string gzip;
    if (acceptsGzip && reply.compressible) {
        gzip = reply.prepared ? reply.prepared->gzip : GzipCompress(plain);
    }
    if (gzip.empty()) {
        response.body = plain;
        return;
    }
    response.set_header("Content-Encoding", "gzip");
    TagAsGzip(response);
    response.body = std::move(gzip);
}

void SetGeneratedBody(const HttpReply& reply, httplib::Response& response)
{
    const auto generated = reply.generated;
    response.set_content_provider(generated->length, reply.contentType,
        [generated](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
            const std::string piece = generated->make(offset, std::min(length, kGeneratedPiece));
            return !piece.empty() && sink.write(piece.data(), piece.size());
        });
}

void FillResponse(const HttpRequest& request, const HttpReply& reply, httplib::Response& response)
{
    response.status = reply.status;
    response.set_header(kRequestIdHeader, request.idIsClients || reply.id.empty() ? request.id : reply.id);
    for (const auto& [name, value] : reply.headers) {
        response.set_header(name, value);
    }
    if (reply.generated) {
        SetGeneratedBody(reply, response);
        return;
    }
    SetBody(reply, request.acceptsGzip, response);
    if (!response.body.empty()) {
        response.set_header("Content-Type", reply.contentType);
    }
}

std::string UnreadableMessage(int status)
{
    switch (status) {
    case 414:
        return "The request line is longer than 8192 bytes.";
    case 416:
        return "The Range header is not one that can be read; expected bytes=FIRST-LAST.";
    case 500:
        return "The server could not finish this request.";
    default:
        return "The request line or a header could not be read, or a header is longer than 8192 bytes.";
    }
}

/// Answers what httplib refused by itself; our own replies carry their request id and stay as they are.
void ExplainRefusal(const httplib::Request&, httplib::Response& response)
{
    if (response.has_header(kRequestIdHeader)) {
        return;
    }
    JsonWriter writer;
    writer.BeginObject().Key("code").Text(response.status == 500 ? "INTERNAL_ERROR" : "BAD_REQUEST");
    writer.Key("message").Text(UnreadableMessage(response.status)).Key("data").Null().EndObject();
    response.set_content(writer.Take(), "application/json");
}

/// httplib offers ranges in every reply to HEAD; only files, which carry a tag, have them.
void WithdrawRangeOffer(const httplib::Request&, httplib::Response& response)
{
    if (!response.has_header("ETag")) {
        response.headers.erase("Accept-Ranges");
    }
}

/// Reads on for a moment after the last reply: closing with unread bytes would make the peer lose that reply.
void DiscardInput(socket_t socket)
{
    ::shutdown(socket, SHUT_WR);
    char discarded[4096];
    std::size_t total = 0;
    pollfd descriptor{socket, POLLIN, 0};
    while (total<kLingerBytes&& ::poll(&descriptor, 1, kLingerMilliseconds)> 0) {
        const ssize_t count = ::recv(socket, discarded, sizeof(discarded), 0);
        if (count <= 0) {
            break;
        }
        total += static_cast<std::size_t>(count);
    }
}

/// What becomes of a connection after an exchange.
enum class Next
{
    Keep,
    Close,
    DiscardAndClose
};

} // namespace

/// httplib reads requests and writes replies; the life of a connection is looked after here, because its own
/// way polls every 10 ms, cannot end idle connections, and reads an unexpected body as the next request.
class HttpServer::Implementation : public httplib::Server
{
public:
    Implementation(HttpServer::Handler handler, Observer observer)
        : m_handler(std::move(handler)), m_observer(std::move(observer))
    {
        new_task_queue = [] { return new httplib::ThreadPool(kThreads); };
        set_tcp_nodelay(true);
        set_keep_alive_max_count(kRequestsPerConnection);
        set_keep_alive_timeout(kKeepAliveSeconds);
        set_socket_options(&AllowQuickRestart);
        set_error_handler(&ExplainRefusal);
        set_exception_handler([](const httplib::Request&, httplib::Response& response, const std::exception_ptr&) {
            response.status = 500;
        });
        set_post_routing_handler(&WithdrawRangeOffer);
        set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
            const HttpRequest ours = ToHttpRequest(request);
            FillResponse(ours, m_handler(ours), response);
            return HandlerResponse::Handled;
        });
    }

    ~Implementation() override { Drain(); }

    int Start(const std::string& host, int port)
    {
        errno = 0; // stays so when the name cannot be resolved
        const int bound = port == 0 ? bind_to_any_port(host) : (bind_to_port(host, port) ? port : -1);
        if (bound <= 0) {
            throw std::runtime_error(ListenFault(host, port, errno == 0 ? kUnknownHost : std::strerror(errno)));
        }
        ::listen(svr_sock_, kBacklog); // httplib asks for 5, and a lost connection attempt costs a second
        m_thread = std::thread([this] { listen_after_bind(); });
        while (!is_running()) {
            std::this_thread::yield();
        }
        return bound;
    }

    void Drain()
    {
        m_draining = true;
        m_wakeUp.Wake();
        stop();
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

private:
    static void AllowQuickRestart(socket_t socket)
    {
        // Not SO_REUSEPORT, httplib's default: with it a second server on the same port would start and share it.
        const int yes = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof(yes));
    }

    bool process_and_close_socket(socket_t socket) override
    {
        SocketStream stream(socket, SocketStream::Limits());
        Next next = Next::Keep;
        for (std::size_t left = kRequestsPerConnection; left > 0 && next == Next::Keep && AwaitRequest(stream);
             --left) {
            next = ServeOne(stream, left == 1);
        }
        if (next == Next::DiscardAndClose) {
            DiscardInput(socket);
        }
        ::close(socket);
        return true;
    }

    /// Waits for the next request of a connection; false when none comes in time or the server is ending.
    bool AwaitRequest(const SocketStream& stream)
    {
        if (stream.HasBufferedInput()) {
            return true;
        }
        pollfd descriptors[] = {{stream.socket(), POLLIN, 0}, {m_wakeUp.Descriptor(), POLLIN, 0}};
        const int timeout = m_draining ? 0 : kKeepAliveSeconds * 1000;
        int ready = 0;
        do {
            ready = ::poll(descriptors, 2, timeout);
        } while (ready < 0 && errno == EINTR);
        return ready > 0 && descriptors[0].revents != 0;
    }

    Next ServeOne(SocketStream& stream, bool last)
    {
        HttpExchange exchange;
        bool unread = true;
        bool close = last || m_draining;
        bool closedByPeer = false;
        const auto begin = std::chrono::steady_clock::now();
        stream.BeginExchange();
        const bool written = process_request(stream, close, closedByPeer, [&](httplib::Request& request) {
            unread = CarriesBody(request);
            close = close || unread || WantsClose(request);
            Prepare(request, close, exchange);
        });
        Report(stream, begin, exchange); // before the client has the reply: whoever has it finds the line in the log
        const bool sent = stream.Flush();
        if (unread) {
            return stream.Status() == 0 ? Next::Close : Next::DiscardAndClose;
        }
        return written && sent && !close && !closedByPeer ? Next::Keep : Next::Close;
    }

    void Prepare(httplib::Request& request, bool close, HttpExchange& exchange)
    {
        request.ranges.clear();
        request.headers.erase("Expect");
        Replace(request.headers, kEncodingHeader, request.get_header_value("Accept-Encoding"));
        request.headers.erase("Accept-Encoding");
        SetId(request);
        if (close) {
            Replace(request.headers, "Connection", "close");
        }
        exchange.id = request.get_header_value(kRequestIdHeader);
        exchange.method = request.method;
        exchange.target = request.target;
        exchange.faults = request.get_header_value(kFaultHeader);
    }

    void SetId(httplib::Request& request)
    {
        const std::string offered = request.get_header_value(kRequestIdHeader);
        const std::string id = m_ids.Choose(offered);
        Replace(request.headers, kRequestIdHeader, id);
        request.headers.erase(kOwnIdHeader);
        if (id != offered) {
            request.headers.emplace(kOwnIdHeader, "1");
        }
    }

    void Report(const SocketStream& stream, std::chrono::steady_clock::time_point begin, HttpExchange& exchange) const
    {
        if (!m_observer || stream.Status() == 0) {
            return;
        }
        exchange.status = stream.Status();
        exchange.bodyBytes = stream.BodyBytes();
        exchange.duration =
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
        m_observer(exchange);
    }

    const HttpServer::Handler m_handler;
    const Observer m_observer;
    RequestIds m_ids;
    WakeUpPipe m_wakeUp;
    std::atomic<bool> m_draining{false};
    std::thread m_thread;
};

HttpServer::HttpServer(Handler handler, Observer observer)
    : m_implementation(std::make_unique<Implementation>(std::move(handler), std::move(observer)))
{
}

HttpServer::~HttpServer() = default;

int HttpServer::Start(const std::string& host, int port)
{
    return m_implementation->Start(host, port);
}

void HttpServer::Stop()
{
    m_implementation->Drain();
}

} // namespace nuqcloud
