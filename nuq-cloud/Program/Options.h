#pragma once

#include "FaultRelay/FaultRule.h"
#include "Program/TlsIdentity.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace nuqcloud {

/// What the command line asks for.
struct Options
{
    std::filesystem::path library;
    std::string host = "127.0.0.1";
    int port = 0;
    std::string configFolder;    ///< empty: no environment files are written
    std::string tokenFile;       ///< empty: environment variables or the demo tokens
    std::string accessLog = "-"; ///< "-" is standard error
    bool accessLogWasNamed = false;
    bool quiet = false;

    bool tls = false;
    std::string tlsCertificate; ///< both or neither; empty: a self-signed one is made
    std::string tlsKey;
    CertificateFault tlsFault = CertificateFault::None;

    bool faultsAllowed = false; ///< by --allow-faults, a rule or a scenario
    std::uint32_t seed = 1;
    std::vector<FaultRule> rules;

    std::string recordFile;
    std::string replayFile;
};

/// A command line that cannot be used; the text is one line for the user.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line.
/// @return nothing when help or the version was asked for and has been printed
/// @throws UsageError
std::optional<Options> ParseOptions(int argc, const char* const* argv);

} // namespace nuqcloud
