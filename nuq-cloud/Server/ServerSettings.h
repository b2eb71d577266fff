#pragma once

#include "Api/Tokens.h"
#include "Http/HttpExchange.h"

#include <ctime>
#include <filesystem>
#include <functional>
#include <string>

namespace nuqcloud {

/// How a server is set up.
struct ServerSettings
{
    std::filesystem::path library; ///< folder made by the sample-library builder; not looked at in a replay
    Tokens tokens;
    std::string host = "127.0.0.1";
    bool faultsAllowed = false;                          ///< only then is X-Nuq-Fault obeyed
    std::string recordFile;                              ///< every exchange is written there; empty for none
    std::string replayFile;                              ///< requests are answered from there; empty for none
    std::function<std::time_t()> clock;                  ///< what the Date header tells; empty: the system's time
    std::function<void(const HttpExchange&)> onExchange; ///< called from many threads; may be empty
};

} // namespace nuqcloud
