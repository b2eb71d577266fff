#pragma once

#include "Api/Tokens.h"
#include "Http/HttpExchange.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nuqcloud {

/// How a server is set up.
struct ServerSettings
{
    std::filesystem::path library; ///< folder made by the sample-library builder
    Tokens tokens;
    std::string host = "127.0.0.1";
    std::function<void(const HttpExchange&)> onExchange; ///< called from many threads; may be empty
};

/// The stand-in cloud as an object: serves a library over HTTP from threads of its own.
class NuqCloudServer
{
public:
    /// Opens and checks the library.
    /// @throws LibraryError with a sentence for the user
    explicit NuqCloudServer(ServerSettings settings);
    ~NuqCloudServer();

    NuqCloudServer(const NuqCloudServer&) = delete;
    NuqCloudServer& operator=(const NuqCloudServer&) = delete;

    /// Begins to answer. Port 0 takes a free one.
    /// @return the port in use
    /// @throws std::runtime_error with a sentence for the user when the address cannot be bound
    int Start(int port);

    /// Lets running requests finish and returns when all threads have ended. Harmless when called twice.
    void Stop();

    /// Patterns of all API paths, such as "/v1/components/{id}", below the API's base address.
    std::vector<std::string> Patterns() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace nuqcloud
