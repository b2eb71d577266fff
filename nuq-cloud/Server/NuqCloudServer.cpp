#include "Server/NuqCloudServer.h"

#include "Http/HttpServer.h"
#include "Server/Responder.h"

#include <utility>

namespace nuqcloud {

class NuqCloudServer::Implementation
{
public:
    explicit Implementation(ServerSettings settings)
        : m_host(settings.host), m_responder(settings),
          m_http([this](const HttpRequest& request) { return m_responder.Answer(request); },
              ObserverOf(std::move(settings)))
    {
    }

    const std::string m_host;
    Responder m_responder;
    HttpServer m_http; // last: its threads use the others

private:
    /// A fault that is not obeyed is not reported either.
    static HttpServer::Observer ObserverOf(ServerSettings settings)
    {
        if (settings.faultsAllowed || !settings.onExchange) {
            return std::move(settings.onExchange);
        }
        return [observe = std::move(settings.onExchange)](HttpExchange exchange) {
            exchange.faults.clear();
            observe(exchange);
        };
    }
};

NuqCloudServer::NuqCloudServer(ServerSettings settings)
    : m_implementation(std::make_unique<Implementation>(std::move(settings)))
{
}

NuqCloudServer::~NuqCloudServer() = default;

int NuqCloudServer::Start(int port)
{
    return m_implementation->m_http.Start(m_implementation->m_host, port);
}

void NuqCloudServer::Stop()
{
    m_implementation->m_http.Stop();
}

std::vector<std::string> NuqCloudServer::Patterns() const
{
    return m_implementation->m_responder.Patterns();
}

} // namespace nuqcloud
