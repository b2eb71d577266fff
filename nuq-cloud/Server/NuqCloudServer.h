#pragma once

#include "Server/ServerSettings.h"

#include <memory>
#include <string>
#include <vector>

namespace nuqcloud {

/// The stand-in cloud as an object: serves a library over HTTP from threads of its own.
class NuqCloudServer
{
public:
    /// Opens and checks the library, or the recording that is to be replayed.
    /// @throws std::runtime_error with a sentence for the user
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

    /// Patterns of all API paths, such as "/v1/components/{id}", below the API's base address; empty for a replay.
    std::vector<std::string> Patterns() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace nuqcloud
