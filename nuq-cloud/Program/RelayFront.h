#pragma once

#include "FaultRelay/FaultPlan.h"
#include "Program/TlsIdentity.h"

#include <memory>
#include <optional>
#include <string>

namespace nuqcloud {

/// The relay in front of the server, as the program needs it: with a thread of its own, and Qt started if nobody has.
class RelayFront
{
public:
    struct Settings
    {
        std::string host;
        int port = 0;
        int targetPort = 0;
        bool obeysHeader = false;
        std::optional<TlsIdentity> tls; ///< with it, clients speak TLS to the relay
    };

    /// @throws std::runtime_error with a sentence for the user
    RelayFront(const Settings& settings, std::shared_ptr<FaultPlan> plan);
    ~RelayFront();

    RelayFront(const RelayFront&) = delete;
    RelayFront& operator=(const RelayFront&) = delete;

    int Port() const;

    /// Ends idle and stalled connections and lets running replies go out; those that take too long are dropped.
    void Drain();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace nuqcloud
