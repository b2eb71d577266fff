#pragma once

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
