#pragma once

#include "Http/HttpExchange.h"
#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <functional>
#include <memory>
#include <string>

namespace nuqcloud {

/// An HTTP/1.1 server that hands every readable request to one function.
///
/// It looks after connections, keep-alive, compression, unreadable requests and an orderly end; what an address
/// means is the function's business. Both functions are called from many threads at once. An exception of the
/// handler becomes a plain 500.
class HttpServer
{
public:
    using Handler = std::function<HttpReply(const HttpRequest&)>;
    using Observer = std::function<void(const HttpExchange&)>;

    /// @param handler answers GET, HEAD and everything else; a HEAD reply's body is left out here
    /// @param observer told of each exchange just before the last of its reply leaves; may be empty
    HttpServer(Handler handler, Observer observer);
    ~HttpServer();

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Binds and begins to answer on threads of its own. Port 0 takes a free one.
    /// @return the port in use
    /// @throws std::runtime_error with a sentence for the user when the address cannot be bound
    int Start(const std::string& host, int port);

    /// Takes no new connections, lets running requests finish, ends idle connections and returns when all is done.
    /// Harmless when called twice or before Start.
    void Stop();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace nuqcloud
