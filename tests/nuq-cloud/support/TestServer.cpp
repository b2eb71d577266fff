#include "nuq-cloud/support/TestServer.h"

#include <utility>

namespace cloudtest {
namespace {

nuqcloud::ServerSettings On(nuqcloud::ServerSettings settings, const TestLibrary& library)
{
    settings.library = library.Path();
    settings.clock = [] { return std::time_t(1700000000); }; // two replies to one request are the same bytes
    return settings;
}

} // namespace

TestServer::TestServer(nuqcloud::ServerSettings settings, const LibraryContent& content)
    : m_library(content), m_server(On(std::move(settings), m_library)), m_port(m_server.Start(0))
{
}

RawReply TestServer::Api(const std::string& path, std::vector<std::string> headers, const std::string& method) const
{
    headers.emplace_back(kToken);
    return Fetch(m_port, "/api" + path, headers, method);
}

std::string TestServer::ApiText(const std::string& path, const std::vector<std::string>& headers) const
{
    return Api(path, headers).Text();
}

nuqcloud::ServerSettings WithFaults()
{
    nuqcloud::ServerSettings settings;
    settings.faultsAllowed = true;
    return settings;
}

} // namespace cloudtest
