#include "Server/NuqCloudServer.h"

#include "Http/HttpServer.h"
#include "Server/CloudService.h"

#include <utility>

namespace nuqcloud {

class NuqCloudServer::Implementation
{
public:
    explicit Implementation(ServerSettings settings)
        : m_host(std::move(settings.host)), m_service(LibraryFolder(settings.library), std::move(settings.tokens)),
          m_http([this](const HttpRequest& request) { return m_service.Answer(request, Tweaks()); },
              std::move(settings.onExchange))
    {
    }

    const std::string m_host;
    const CloudService m_service;
    HttpServer m_http; // last: its threads use the others
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
    return m_implementation->m_service.Patterns();
}

} // namespace nuqcloud
