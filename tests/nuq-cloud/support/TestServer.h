#pragma once

#include "Server/NuqCloudServer.h"
#include "nuq-cloud/support/RawClient.h"
#include "nuq-cloud/support/TestLibrary.h"

#include <string>
#include <vector>

namespace cloudtest {

/// The header that the production-like environment wants.
constexpr char kToken[] = "Authorization: demo-token";

/// A server in this process over a library of its own, on a free port.
class TestServer
{
public:
    TestServer() : TestServer(nuqcloud::ServerSettings()) {}
    explicit TestServer(nuqcloud::ServerSettings settings, const LibraryContent& content = SmallContent());

    int Port() const { return m_port; }
    const TestLibrary& Library() const { return m_library; }
    nuqcloud::NuqCloudServer& Server() { return m_server; }

    /// Asks the API: `path` stands behind "/api"; the token is added.
    RawReply Api(
        const std::string& path, std::vector<std::string> headers = {}, const std::string& method = "GET") const;

    /// The body of such a reply.
    std::string ApiText(const std::string& path, const std::vector<std::string>& headers = {}) const;

private:
    TestLibrary m_library;
    nuqcloud::NuqCloudServer m_server;
    const int m_port;
};

/// A server that obeys X-Nuq-Fault.
nuqcloud::ServerSettings WithFaults();

} // namespace cloudtest
