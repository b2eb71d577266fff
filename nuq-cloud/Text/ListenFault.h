#pragma once

#include <string>

namespace nuqcloud {

/// Why a host cannot be listened on when its name or address belongs to nobody.
inline constexpr char kUnknownHost[] = "The host is not known";

/// What an operator reads when a server cannot listen: what was tried, why it failed, what to try instead.
inline std::string ListenFault(const std::string& host, int port, const std::string& reason)
{
    const char* const advice = reason == kUnknownHost ? "Name an address of this computer with --host."
                                                      : "Choose another --port, or --port 0 for a free one.";
    return "Cannot listen on " + host + " port " + std::to_string(port) + ": " + reason + ". " + advice;
}

} // namespace nuqcloud
